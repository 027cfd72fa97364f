#pragma once

#include "store/recordset_rows.h"

/// From a row in memory to the store: one statement a row, with every value bound.
namespace verdane {

/// Writes the columns that changed, or adds the row with the columns that were written. Gives the
/// engine's number of the row; touches nothing in memory. Fails with `misuse` when the row is no
/// longer in the store.
qint64 write_row(const Connection1& connection, const row_set& set, const recordset_row& row,
                 const QString& where);

/// Removes the row; one that is gone already is no failure.
void erase_row(const Connection1& connection, const row_set& set, qint64 number, const QString& where);

}  // namespace verdane
