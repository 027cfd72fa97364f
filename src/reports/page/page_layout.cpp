#include "reports/page/page_layout.h"

#include <QAbstractTextDocumentLayout>
#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QStringList>
#include <QTextDocument>
#include <QUrl>

#include "reports/page/layout_units.h"
#include "reports/template/page_limits.h"

namespace verdane {

/// A document that loads nothing: no picture, background or style sheet, whatever its HTML names.
class closed_document : public QTextDocument {
public:
    /// The names of the files that its HTML refers to.
    const QStringList& refused() const { return refused_; }

protected:
    QVariant loadResource(int, const QUrl& name) override
    {
        refused_.append(name.toString());
        return {};
    }

private:
    QStringList refused_;
};

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
      document_(std::make_unique<closed_document>())
{
    document_->setUndoRedoEnabled(false);
    document_->setDocumentMargin(0);
    document_->setDefaultFont(font_);
    document_->setUseDesignMetrics(true);
    document_->documentLayout()->registerHandler(QTextFormat::ImageObject, &drawings_);
    // One endless page: the paging of the toolkit cuts rows of several lines in two. Set before the text,
    // which would otherwise be laid out twice.
    document_->setTextWidth(inside_.width());
    document_->setHtml(with_layout_units(drawings_.extracted(html, source.layout_name)));
    // A reference that the check of the page did not find is a failure, too.
    if (!document_->refused().isEmpty())
        fail_template(source.at(source.body_line), file_refusal(document_->refused().constFirst()));
    shrink_ = qMin(1.0, inside_.width() / document_->size().width());
    cuts_ = cut_into_pages(*document_, inside_.height() / shrink_, source.at(source.body_line));
}

page_layout::~page_layout() = default;

int page_layout::page_count() const
{
    return static_cast<int>(cuts_.size());
}

void page_layout::paint(QPainter& painter, int page, const QString& footer) const
{
    const page_cut& cut = cuts_.at(static_cast<std::size_t>(page));
    painter.save();
    painter.translate(inside_.topLeft());
    painter.scale(shrink_, shrink_);
    paint_strip(painter, cut.repeated_head, 0);
    paint_strip(painter, cut.body, cut.repeated_head.height());
    painter.restore();
    paint_footer(painter, footer);
}

void page_layout::paint_strip(QPainter& painter, const page_strip& strip, double top) const
{
    if (strip.height() <= 0)
        return;
    painter.save();
    painter.translate(0, top - strip.top);
    QAbstractTextDocumentLayout::PaintContext context;
    // Paper is white whatever the desktop's colours are.
    context.palette.setColor(QPalette::Text, Qt::black);
    context.clip = QRectF(0, strip.top, inside_.width() / shrink_, strip.height());
    painter.setClipRect(context.clip);
    document_->documentLayout()->draw(&painter, context);
    painter.restore();
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
