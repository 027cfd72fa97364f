#include "reports/output/report_print.h"

#include <QPainter>
#include <QPrinter>

#include "base/run_time_failure.h"
#include "reports/page/layout_units.h"
#include "reports/report_document.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

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
