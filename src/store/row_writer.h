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

/// Deletes the row. A row that no longer exists is no failure if rows have numbers. Without them it fails
/// with `misuse`: the row may still exist with other values.
void erase_row(const Connection1& connection, const row_set& set, const recordset_row& row,
               const QString& where);

}  // namespace verdane
