#include "reports/page/page_layout.h"

#include <QFontMetricsF>
#include <QPainter>

#include <numeric>

#include "reports/page/layout_units.h"
#include "reports/page/page_split.h"

namespace verdane {

namespace {

const QColor footer_grey(0x70, 0x70, 0x70);

/// Without the hinting of a screen, which changes the widths of the letters.
QFont report_font(const template_file& source)
{
    QFont font;
    font.setFamilies(source.font_families);
    font.setPixelSize(qRound(source.font_points * units_per_pt));
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setLetterSpacing(QFont::AbsoluteSpacing, spacing_without_ligatures);
    return font;
}

}  // namespace

page_layout::page_layout(const template_file& source, const QString& html)
    : source_(source),
      font_(report_font(source)),
      paper_(QPointF(0, 0), source.page_size_mm() * units_per_mm),
      inside_(paper_.marginsRemoved(source.margins * units_per_mm))
{
    split_html split = split_at_page_break(html);
    rest_ = std::move(split.rest);
    lay_out(split.first);
    if (pages_of_parts() == 0)
        complete();
}

void page_layout::lay_out(const QString& html)
{
    parts_.push_back(std::make_unique<laid_out_html>(source_, font_, inside_.size(), pages_of_parts(), html));
}

void page_layout::complete()
{
    if (is_complete())
        return;
    lay_out(rest_);
    rest_.clear();
}

int page_layout::pages_of_parts() const
{
    return std::accumulate(parts_.begin(), parts_.end(), 0,
                           [](int sum, const auto& part) { return sum + part->page_count(); });
}

int page_layout::pages_so_far() const
{
    return qMax(1, pages_of_parts());
}

void page_layout::paint(QPainter& painter, int page, const QString& footer) const
{
    painter.save();
    painter.translate(inside_.topLeft());
    paint_body(painter, page);
    painter.restore();
    paint_footer(painter, footer);
}

void page_layout::paint_body(QPainter& painter, int page) const
{
    for (const auto& part : parts_) {
        if (page < part->page_count()) {
            part->paint(painter, page);
            return;
        }
        page -= part->page_count();
    }
}

void page_layout::paint_footer(QPainter& painter, const QString& footer) const
{
    painter.save();
    painter.setFont(font_);
    painter.setPen(footer_grey);
    const double reached = qMax(paper_.bottom() - unprintable_rim * units_per_mm,
                                inside_.bottom() + QFontMetricsF(font_).height());
    const QRectF below(inside_.left(), inside_.bottom(), inside_.width(), reached - inside_.bottom());
    painter.drawText(below, Qt::AlignRight | Qt::AlignVCenter, footer);
    painter.restore();
}

}  // namespace verdane
