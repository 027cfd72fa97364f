#pragma once

#include <QString>
#include <QStringView>

#include <optional>

#include "reports/check/page_values.h"

namespace verdane {

class report_snapshot;
struct template_file;

/// Finds the first fault in a page: an element nested too deep, a font size that cannot be printed, a length
/// or span that is too large, a text too long to break, or a reference to a file. Empty if the page may be
/// laid out. `font_points` is the size of the letters without a style.
std::optional<page_fault> first_fault(QStringView html, double font_points);

/// Fails with `report_template`, at the line of the template that the fault comes from, on the first fault of
/// `html`, which is the filled body of `source`.
void check_page(const template_file& source, const report_snapshot& snapshot, const QString& html);

}  // namespace verdane
