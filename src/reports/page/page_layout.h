#pragma once

#include <QFont>
#include <QRectF>
#include <QString>

#include "reports/page/laid_out_html.h"
#include "reports/template/template_file.h"

class QPainter;

namespace verdane {

/// The pages of a report: paper, margins, body and footer. Everything here is in layout units
/// (`layout_units.h`).
class page_layout {
public:
    /// Lays out `html` on the paper and within the margins of `source`. Fails as `laid_out_html` does.
    page_layout(const template_file& source, const QString& html);

    int page_count() const { return body_.page_count(); }

    /// Paints a page, counted from 0, with the origin at the corner of the paper.
    void paint(QPainter& painter, int page, const QString& footer) const;

private:
    /// In the bottom margin, above the edge where printers do not print.
    void paint_footer(QPainter& painter, const QString& footer) const;

    QFont font_;
    QRectF paper_;
    QRectF inside_;
    laid_out_html body_;
};

}  // namespace verdane
