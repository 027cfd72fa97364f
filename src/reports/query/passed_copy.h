#pragma once

#include "reports/query/report_tables.h"

class QSqlDatabase;

namespace verdane {

/// Creates all passed tables in `target`, an open SQLite database in memory, and fills them with `rows`.
/// Fails with `misuse` on rows of an unknown table or with another number of values than the table has
/// columns.
void create_passed_tables(const QSqlDatabase& target, const passed_rows& rows);

}  // namespace verdane
