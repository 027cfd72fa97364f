#pragma once

#include <QStringList>
#include <QVariant>

#include <map>
#include <vector>

class QSqlDatabase;

namespace verdane {

/// The tables of the store that a template may read: those that the statistics and the scorecard fill, and
/// the names of the clubs, for which the scorecard's table has no column.
const QStringList& stored_tables();

/// A table that a statistic passes to its report in memory. The store has no such table.
struct passed_table {
    QString name;
    QStringList columns;
};

/// These tables. A report for which nothing was passed has them without rows.
const std::vector<passed_table>& passed_tables();

/// The values of a row by the name of the column, one for each column. An invalid variant is Null.
using passed_row = std::map<QString, QVariant>;

/// The rows of the passed tables by the name of the table.
using passed_rows = std::map<QString, std::vector<passed_row>>;

/// All tables that a template may read.
const QStringList& readable_tables();

/// Creates all passed tables in `target`, an open SQLite database in memory, and fills them with `rows`.
/// Fails with `misuse` on rows of an unknown table, and on a row that lacks a column or has an unknown one.
void create_passed_tables(const QSqlDatabase& target, const passed_rows& rows);

}  // namespace verdane
