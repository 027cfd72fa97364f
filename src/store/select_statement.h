#pragma once

#include <QString>
#include <QStringView>

namespace verdane {

/// What a recordset has to know of its statement: whether each row stands for one row of one table.
struct select_statement {
    /// True for `select COLUMNS from TABLE [where ...] [order by ...] [limit ...]`, where COLUMNS
    /// computes nothing. Joins, groups, unions, aliases and distinct rows cannot be written back.
    bool updatable = false;
    /// The table's name as it is written; empty when not updatable.
    QString table;
    /// Where the list of columns starts in the text; 0 when not updatable.
    qsizetype columns_at = 0;
};

/// Reads a statement as far as that. Keywords count in capitals or not, blanks do not count.
select_statement read_select(QStringView statement);

/// The statement with the engine's own row number fetched before the columns; the rest of its text
/// is unchanged. Only for an updatable one.
QString with_row_number(const QString& statement, const select_statement& shape);

}  // namespace verdane
