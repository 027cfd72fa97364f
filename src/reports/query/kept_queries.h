#pragma once

#include <QStringList>

#include "reports/template/template_file.h"

namespace verdane {

/// Whether the rows of a query with these columns may be kept in a table, from which the queries below it
/// then select. Otherwise each of them runs it again as a step of its own statement. The table has the
/// columns and the types of the query if it has no columns of one name and combines no selections (`union`),
/// whose types may differ.
bool may_be_kept(const template_query& query, const QStringList& columns);

/// Whether a query below this one may select from it.
bool is_named_below(const template_file& source, const template_query& query);

}  // namespace verdane
