#pragma once

#include <QString>

#include "store/row_reader.h"

/// Writing rows to the store: one statement for each row. The rows in memory are not
/// changed.
namespace verdane {

/// Writes the columns that changed, or inserts the row with the columns that were written. Returns the
/// engine's number of the row. Fails with `misuse` if the row is no longer in the store.
qint64 write_row(const Connection1& connection, const row_set& set, const recordset_row& row,
                 const QString& where);

/// Numbers a row among those that have the same stored values, if rows have no numbers of the engine. To be
/// called while the row is still among the rows of the set, before `erase_row`.
void number_equal_rows(const row_set& set, recordset_row& removed);

/// Deletes the row. A row that no longer exists is no failure if rows have numbers. Without them it fails
/// with `misuse`: the row may still exist with other values.
void erase_row(const Connection1& connection, const row_set& set, const recordset_row& row,
               const QString& where);

}  // namespace verdane
