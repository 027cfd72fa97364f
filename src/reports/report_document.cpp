#include "reports/report_document.h"

#include <QFileInfo>
#include <QPainter>

#include "reports/check/page_check.h"
#include "reports/fill/template_fill.h"
#include "reports/output/report_output.h"
#include "reports/page/layout_units.h"
#include "reports/page/page_layout.h"
#include "reports/page/report_drawings.h"
#include "reports/query/report_snapshot.h"
#include "reports/template/template_reader.h"

namespace verdane {

struct report_document::contents {
    template_file source;
    report_rows figures;
    std::unique_ptr<page_layout> pages;
};

report_document::report_document(std::unique_ptr<contents> made) : contents_(std::move(made)) {}

report_document::~report_document() = default;

std::shared_ptr<const report_document>
render_report(const QString& template_path, const continue_check& may_continue, const passed_rows& passed)
{
    auto made = std::make_unique<report_document::contents>();
    made->source = read_template(template_path);
    template_file marked = made->source;
    marked.body = report_drawings::marked(marked.body, marked.body_line);
    const report_snapshot snapshot(marked, may_continue, passed);
    const QString html = fill_body(marked, snapshot);
    check_page(marked, snapshot, html);
    fill_footer(marked, 1, 1);
    made->figures = snapshot.rows(*marked.find_query(marked.csv_query));
    made->pages = std::make_unique<page_layout>(made->source, html);
    return std::shared_ptr<const report_document>(new report_document(std::move(made)));
}

const QString& report_document::title() const
{
    return contents_->source.title;
}

QString report_document::base_name() const
{
    return QFileInfo(contents_->source.file_name).completeBaseName();
}

int report_document::pages_so_far() const
{
    return contents_->pages->pages_so_far();
}

bool report_document::is_complete() const
{
    return contents_->pages->is_complete();
}

void report_document::complete() const
{
    contents_->pages->complete();
}

int report_document::page_count() const
{
    complete();
    return pages_so_far();
}

QSizeF report_document::page_size_mm() const
{
    return contents_->source.page_size_mm();
}

QMarginsF report_document::margins_mm() const
{
    return contents_->source.margins;
}

void report_document::paint(QPainter& painter, int page) const
{
    complete();
    paint_early(painter, page);
}

void report_document::paint_early(QPainter& painter, int page) const
{
    const std::optional<int> pages = is_complete() ? std::optional(pages_so_far()) : std::nullopt;
    painter.save();
    painter.scale(1 / units_per_mm, 1 / units_per_mm);
    // Smoothed edges would leave light seams between the coloured cells of a table. The drawings are painted
    // with smoothing.
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setRenderHint(QPainter::TextAntialiasing);
    contents_->pages->paint(painter, page, fill_footer(contents_->source, page + 1, pages));
    painter.restore();
}

QImage report_document::page_image(int page, double dots_per_inch) const
{
    const double dots_per_mm = dots_per_inch / 25.4;
    QImage image((page_size_mm() * dots_per_mm).toSize(), QImage::Format_RGB32);
    image.setDotsPerMeterX(qRound(dots_per_mm * 1000));
    image.setDotsPerMeterY(qRound(dots_per_mm * 1000));
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(dots_per_mm, dots_per_mm);
    paint(painter, page);
    return image;
}

void report_document::save_pdf(const QString& path) const
{
    write_report_file(path, pdf_of(*this));
}

void report_document::save_csv(const QString& path) const
{
    write_report_file(path, csv_text(contents_->figures, contents_->source.csv_separator));
}

void report_document::save_picture(const QString& path, int page) const
{
    write_report_file(path, png_of(page_image(page, 200)));
}

void report_document::print(QPrinter& printer) const
{
    print_report(*this, printer);
}

}  // namespace verdane
