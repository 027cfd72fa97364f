#pragma once

#include <QFont>
#include <QRectF>
#include <QString>

#include <memory>
#include <vector>

#include "reports/page/laid_out_html.h"
#include "reports/template/template_file.h"

class QPainter;

namespace verdane {

/// The pages of a report: paper, margins, body and footer. Everything here is in layout units
/// (`layout_units.h`).
class page_layout {
public:
    /// Lays out `html` up to its first page break (`split_at_page_break`) on the paper and within the margins
    /// of `source`, which must outlive the layout. Fails as `laid_out_html` does.
    page_layout(const template_file& source, const QString& html);

    /// The pages that are laid out; at least one.
    int pages_so_far() const;
    bool is_complete() const { return rest_.isEmpty(); }

    /// Lays out the pages that are missing. Fails as `laid_out_html` does; the pages so far remain, and the
    /// next call fails in the same way.
    void complete();

    /// Paints a page that is laid out, counted from 0, with the origin at the corner of the paper.
    void paint(QPainter& painter, int page, const QString& footer) const;

private:
    void lay_out(const QString& html);
    int pages_of_parts() const;
    void paint_body(QPainter& painter, int page) const;
    /// In the bottom margin, above the edge where printers do not print.
    void paint_footer(QPainter& painter, const QString& footer) const;

    const template_file& source_;
    QFont font_;
    QRectF paper_;
    QRectF inside_;
    std::vector<std::unique_ptr<laid_out_html>> parts_;
    /// The HTML that is not laid out yet.
    QString rest_;
};

}  // namespace verdane
