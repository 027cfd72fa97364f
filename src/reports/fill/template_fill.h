#pragma once

#include <QString>

#include <optional>

#include "reports/query/report_snapshot.h"
#include "reports/template/template_file.h"

namespace verdane {

/// The body of a template with the figures of the store, every value escaped. The section of a query is
/// repeated for each row. The section of a field is there if the field is not empty and not 0. Fails with
/// `report_template`, at the line of the body, on a query, field or section that does not exist, and on more
/// characters than `page_limits.h` allows.
QString fill_body(const template_file& source, const report_snapshot& snapshot);

/// The text below a page, with "…" for the number of pages if it is not known yet. Fails with
/// `report_template` on any field other than `page` and `pages`.
QString fill_footer(const template_file& source, int page, std::optional<int> pages);

/// A value as it is printed: whole numbers without a point, Null as nothing.
QString printed_value(const QVariant& value);

}  // namespace verdane
