#include "reports/page/laid_out_html.h"

#include <QAbstractTextDocumentLayout>
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

laid_out_html::laid_out_html(const template_file& source, const QFont& font, const QSizeF& page,
                             int pages_before, const QString& html)
    : page_width_(page.width()), document_(std::make_unique<closed_document>())
{
    document_->setUndoRedoEnabled(false);
    document_->setDocumentMargin(0);
    document_->setDefaultFont(font);
    document_->setUseDesignMetrics(true);
    document_->documentLayout()->registerHandler(QTextFormat::ImageObject, &drawings_);
    // One endless page: the paging of the toolkit cuts rows of several lines in two. Set before the text,
    // which would otherwise be laid out twice.
    document_->setTextWidth(page.width());
    document_->setHtml(with_layout_units(drawings_.extracted(html, source.layout_name)));
    // A reference that the check of the page did not find is a failure, too.
    if (!document_->refused().isEmpty())
        fail_template(source.at(source.body_line), file_refusal(document_->refused().constFirst()));
    shrink_ = qMin(1.0, page.width() / document_->size().width());
    cuts_ = cut_into_pages(*document_, page.height() / shrink_, source.at(source.body_line), pages_before);
}

laid_out_html::~laid_out_html() = default;

int laid_out_html::page_count() const
{
    return static_cast<int>(cuts_.size());
}

void laid_out_html::paint(QPainter& painter, int page) const
{
    const page_cut& cut = cuts_.at(static_cast<std::size_t>(page));
    painter.save();
    painter.scale(shrink_, shrink_);
    paint_strip(painter, cut.repeated_head, 0);
    paint_strip(painter, cut.body, cut.repeated_head.height());
    painter.restore();
}

void laid_out_html::paint_strip(QPainter& painter, const page_strip& strip, double top) const
{
    if (strip.height() <= 0)
        return;
    painter.save();
    painter.translate(0, top - strip.top);
    QAbstractTextDocumentLayout::PaintContext context;
    // Paper is white whatever the desktop's colours are.
    context.palette.setColor(QPalette::Text, Qt::black);
    context.clip = QRectF(0, strip.top, page_width_ / shrink_, strip.height());
    painter.setClipRect(context.clip);
    document_->documentLayout()->draw(&painter, context);
    painter.restore();
}

}  // namespace verdane
