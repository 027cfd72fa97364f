#pragma once

#include <QFont>
#include <QString>

#include <memory>
#include <vector>

#include "reports/page/page_cuts.h"
#include "reports/page/report_drawings.h"
#include "reports/template/template_file.h"

class QPainter;

namespace verdane {

class closed_document;

/// HTML that is laid out and cut into pages. Everything here is in layout units (`layout_units.h`).
class laid_out_html {
public:
    /// `page` is the size of a page within its margins. Table heads (`<thead>`) are repeated on each page.
    /// Fails with `report_template` on a drawing that is wrong, on HTML that would load a file, and on too
    /// many pages, which include the `pages_before`.
    laid_out_html(const template_file& source, const QFont& font, const QSizeF& page, int pages_before,
                  const QString& html);
    ~laid_out_html();

    /// 0 if nothing is printed.
    int page_count() const;

    /// Paints the content of a page, counted from 0, with the origin at the corner within the margins.
    void paint(QPainter& painter, int page) const;

private:
    void paint_strip(QPainter& painter, const page_strip& strip, double top) const;

    double page_width_;
    report_drawings drawings_;
    std::unique_ptr<closed_document> document_;
    /// Below 1 if the body is wider than the page, as the fonts of another machine may make it: a smaller
    /// page is better than a column that is cut off.
    double shrink_ = 1;
    std::vector<page_cut> cuts_;
};

}  // namespace verdane
