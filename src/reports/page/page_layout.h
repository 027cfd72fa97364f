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
    /// Lays out `html` on the paper and within the margins of `source`. Table heads (`<thead>`) stand
    /// again on each page. Fails with `report_template` on a drawing that is wrong, on HTML that would load a
    /// file, and on too many pages.
    page_layout(const template_file& source, const QString& html);
    ~page_layout();

    int page_count() const;

    /// Paints a page, counted from 0, with the origin at the corner of the paper.
    void paint(QPainter& painter, int page, const QString& footer) const;

private:
    void paint_strip(QPainter& painter, const page_strip& strip, double top) const;
    /// In the bottom margin, clear of what printers do not reach.
    void paint_footer(QPainter& painter, const QString& footer) const;

    QFont font_;
    QRectF paper_;
    QRectF inside_;
    report_drawings drawings_;
    std::unique_ptr<closed_document> document_;
    /// Below 1 where the body is wider than the page: letters of another machine may be, and a column
    /// that is printed smaller is better than one that is cut off.
    double shrink_ = 1;
    std::vector<page_cut> cuts_;
};

}  // namespace verdane
