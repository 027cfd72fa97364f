#pragma once

#include <QFont>
#include <QRectF>
#include <QString>

#include <memory>

#include "reports/page/page_cuts.h"
#include "reports/page/report_drawings.h"
#include "reports/template/template_file.h"

class QPainter;

namespace verdane {

class closed_document;

/// A report's HTML laid out on pages. Everything here is in layout units (`layout_units.h`).
class page_layout {
public:
    /// Lays out `html` on the paper and within the margins of `source`. Table heads (`<thead>`) are
    /// repeated on each page. Fails with `report_template` on a drawing that is wrong, on HTML that would
    /// load a file, and on too many pages.
    page_layout(const template_file& source, const QString& html);
    ~page_layout();

    int page_count() const;

    /// Paints a page, counted from 0, with the origin at the corner of the paper.
    void paint(QPainter& painter, int page, const QString& footer) const;

private:
    void paint_strip(QPainter& painter, const page_strip& strip, double top) const;
    /// In the bottom margin, above the edge where printers do not print.
    void paint_footer(QPainter& painter, const QString& footer) const;

    QFont font_;
    QRectF paper_;
    QRectF inside_;
    report_drawings drawings_;
    std::unique_ptr<closed_document> document_;
    /// Below 1 if the body is wider than the page, as the fonts of another machine may make it: a smaller
    /// page is better than a column that is cut off.
    double shrink_ = 1;
    std::vector<page_cut> cuts_;
};

}  // namespace verdane
