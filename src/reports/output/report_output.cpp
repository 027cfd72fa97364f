#include "reports/output/report_output.h"

#include <QBuffer>
#include <QFileInfo>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QSaveFile>

#include "base/run_time_failure.h"
#include "reports/fill/template_fill.h"
#include "reports/page/layout_units.h"
#include "reports/report_document.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

QString field_of(const QVariant& value, QChar separator)
{
    QString text = printed_value(value);
    if (value.typeId() == QMetaType::Double && separator == u';')
        text.replace(u'.', u',');
    const bool needs_quotes =
        text.contains(separator) || text.contains(u'"') || text.contains(u'\n') || text.contains(u'\r');
    if (!needs_quotes)
        return text;
    return u'"' + text.replace(u'"', u"\"\""_s) + u'"';
}

/// The part of a page that must fit on the paper: all but the outer edge of its margins.
QSizeF needed_size(const report_document& document)
{
    const QMarginsF margins = document.margins_mm();
    const double side = qMax(0.0, qMin(margins.left(), margins.right()) - unprintable_rim);
    const double end = qMax(0.0, qMin(margins.top(), margins.bottom()) - unprintable_rim);
    return document.page_size_mm() - QSizeF(2 * side, 2 * end);
}

/// Centres the page on the paper, in its true size if it fits.
void place_on_paper(QPainter& painter, const QPrinter& printer, const report_document& document)
{
    const QSizeF paper = printer.pageLayout().fullRect(QPageLayout::Millimeter).size();
    const QSizeF page = document.page_size_mm();
    const QSizeF needed = needed_size(document);
    const double dots_per_mm = printer.resolution() / 25.4;
    const double shrink = qMin(1.0, qMin(paper.width() / needed.width(), paper.height() / needed.height()));
    painter.scale(dots_per_mm, dots_per_mm);
    painter.translate((paper.width() - page.width() * shrink) / 2,
                      (paper.height() - page.height() * shrink) / 2);
    painter.scale(shrink, shrink);
}

struct page_range {
    int first;
    int last;
};

/// Pages from 0. The last is before the first if the report has none of the range. Without a range, both ends
/// are 0 in the printer.
page_range range_of(const QPrinter& printer, int page_count)
{
    if (printer.fromPage() <= 0)
        return {0, page_count - 1};
    return {printer.fromPage() - 1, qMin(printer.toPage(), page_count) - 1};
}

[[noreturn]] void fail_printing(const QPrinter& printer)
{
    throw run_time_failure(failure_kind::report_output,
                           u"printer %1 %2"_s.arg(printer.printerName(), printer.outputFileName()));
}

}  // namespace

QByteArray pdf_of(const report_document& document)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(document.title());
    writer.setResolution(1200);
    writer.setPageSize(QPageSize(document.page_size_mm(), QPageSize::Millimeter));
    writer.setPageMargins(QMarginsF());
    QPainter painter(&writer);
    const double dots_per_mm = writer.resolution() / 25.4;
    painter.scale(dots_per_mm, dots_per_mm);
    for (int page = 0; page < document.page_count(); ++page) {
        if (page > 0)
            writer.newPage();
        document.paint(painter, page);
    }
    painter.end();
    return buffer.data();
}

QByteArray png_of(const QImage& image)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return buffer.data();
}

QByteArray csv_text(const report_rows& rows, QChar separator)
{
    QString text(QChar::ByteOrderMark);
    QStringList heads;
    for (const QString& column : rows.columns)
        heads.append(field_of(column, separator));
    text += heads.join(separator) + u"\r\n"_s;
    for (const std::vector<QVariant>& row : rows.rows) {
        QStringList fields;
        for (const QVariant& value : row)
            fields.append(field_of(value, separator));
        text += fields.join(separator) + u"\r\n"_s;
    }
    return text.toUtf8();
}

void write_report_file(const QString& path, const QByteArray& bytes)
{
    // The new file is written under another name and then replaces the old one, which would replace a device
    // or a pipe by a file.
    const QFileInfo there(path);
    if (there.exists() && !there.isFile())
        throw run_time_failure(failure_kind::report_output, u"%1: not a file"_s.arg(path));
    QSaveFile file(path);
    // Unbuffered, because the buffer of the toolkit reports a write as complete even if the disk is full.
    if (file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && file.write(bytes) == bytes.size() &&
        file.commit())
        return;
    throw run_time_failure(failure_kind::report_output, u"%1: %2"_s.arg(path, file.errorString()));
}

void print_report(const report_document& document, QPrinter& printer)
{
    const page_range range = range_of(printer, document.page_count());
    if (range.last < range.first)
        return;
    printer.setFullPage(true);
    QPainter painter;
    if (!painter.begin(&printer))
        fail_printing(printer);
    const int copies = printer.supportsMultipleCopies() ? 1 : printer.copyCount();
    bool is_first = true;
    for (int copy = 0; copy < copies; ++copy) {
        for (int page = range.first; page <= range.last; ++page) {
            if (!is_first && !printer.newPage())
                fail_printing(printer);
            is_first = false;
            painter.save();
            place_on_paper(painter, printer, document);
            document.paint(painter, page);
            painter.restore();
        }
    }
    if (!painter.end() || printer.printerState() == QPrinter::Error)
        fail_printing(printer);
}

}  // namespace verdane
