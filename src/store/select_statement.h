#pragma once

#include <QString>
#include <QStringView>

namespace verdane {

/// The parts of a statement that a recordset uses.
struct select_statement {
    /// True for `select COLUMNS from TABLE [where ...] [order by ...] [limit ...]` with nothing computed in
    /// COLUMNS: each row is then a row of the table and can be written. Joins, groups, unions, aliases and
    /// distinct rows cannot.
    bool updatable = false;
    /// The name of the table as written; empty if not updatable.
    QString table;
    /// The position of the list of columns in the text; 0 if not updatable.
    qsizetype columns_at = 0;
    /// The position after that list; 0 if not updatable.
    qsizetype columns_end = 0;
    /// True if COLUMNS is `*`.
    bool all_columns = false;
};

/// Parses a statement to that extent. Case and blanks have no effect.
select_statement read_select(QStringView statement);

/// The statement with the column that identifies a row selected before the others. Only for an updatable
/// statement.
QString with_row_number(const QString& statement, const select_statement& shape, const QString& identity);

/// The statement with each `*` in its list of columns after the name of the table: `select t.* from t`. Only
/// for an updatable statement.
QString with_qualified_columns(const QString& statement, const select_statement& shape);

/// The statement with other columns. Only for an updatable statement.
QString with_columns(const QString& statement, const select_statement& shape, const QString& columns);

}  // namespace verdane
