#pragma once

#include <QImage>
#include <QMarginsF>
#include <QSizeF>
#include <QString>

#include <memory>

#include "reports/query/query_guard.h"
#include "reports/query/report_tables.h"

class QPainter;
class QPrinter;

namespace verdane {

/// A report with its figures, cut into pages. Screen, printer, PDF and picture all paint these pages; the CSV
/// file has their figures. It depends on no screen, window or printer, and does not change when the store
/// does.
class report_document {
public:
    ~report_document();
    report_document(const report_document&) = delete;
    report_document& operator=(const report_document&) = delete;

    /// The title of the template, and the name of its file without folder and ending.
    const QString& title() const;
    QString base_name() const;

    /// The pages that are laid out, at least one, and whether these are all.
    int pages_so_far() const;
    bool is_complete() const;

    /// Lays out the pages that are missing. Fails with `report_template`, also when it is called again.
    void complete() const;

    /// The number of all pages, after `complete`.
    int page_count() const;

    QSizeF page_size_mm() const;
    QMarginsF margins_mm() const;

    /// Paints a page, counted from 0, with the painter's origin at the corner of the paper and one
    /// unit for one millimetre. Calls `complete` before, since a page may show the number of pages. So do the
    /// other functions that paint, save or print pages.
    void paint(QPainter& painter, int page) const;

    /// Paints a page that is laid out, with "…" for the number of pages if it is not known yet.
    void paint_early(QPainter& painter, int page) const;

    /// A page as a picture on white paper.
    QImage page_image(int page, double dots_per_inch) const;

    /// Writes all pages. Fails with `report_output`; a file of that name is then as it was.
    void save_pdf(const QString& path) const;

    /// Writes the figures as UTF-8 text with the byte order mark that spreadsheets expect: the names of the
    /// columns, then one line for each row. With `;` between the fields, numbers take a decimal comma.
    /// Fails as `save_pdf`.
    void save_csv(const QString& path) const;

    /// Writes one page as a PNG picture at 200 dots per inch. Fails as `save_pdf`.
    void save_picture(const QString& path, int page) const;

    /// Prints the pages of the range that is set in the printer, in the middle of its paper, smaller only if
    /// the paper is smaller than the page. Fails with `report_output`.
    void print(QPrinter& printer) const;

private:
    friend std::shared_ptr<const report_document> render_report(const QString& template_path,
                                                                const continue_check& may_continue,
                                                                const passed_rows& passed);
    struct contents;
    explicit report_document(std::unique_ptr<contents> made);

    std::unique_ptr<contents> contents_;
};

/// Reads a template, gets its figures from the store and from `passed`, and lays out the pages up to the
/// first page break; the other pages are laid out when they are needed. Fails with `report_template` (file
/// and line in the details) or as `report_snapshot` does. `may_continue` is called while queries run;
/// `report_stopped` is thrown when it returns false.
std::shared_ptr<const report_document> render_report(const QString& template_path,
                                                     const continue_check& may_continue = {},
                                                     const passed_rows& passed = {});

}  // namespace verdane
