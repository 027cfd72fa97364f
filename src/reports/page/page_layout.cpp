#include "reports/page/page_layout.h"

#include <QFontMetricsF>
#include <QPainter>

#include "reports/page/layout_units.h"

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
    : font_(report_font(source)),
      paper_(QPointF(0, 0), source.page_size_mm() * units_per_mm),
      inside_(paper_.marginsRemoved(source.margins * units_per_mm)),
      body_(source, font_, inside_.size(), html)
{
}

void page_layout::paint(QPainter& painter, int page, const QString& footer) const
{
    painter.save();
    painter.translate(inside_.topLeft());
    body_.paint(painter, page);
    painter.restore();
    paint_footer(painter, footer);
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
