#pragma once

#include <QString>

namespace verdane {

/// The file in the data folder of the user with the statements that add the column that identifies a row.
QString row_script_path();

/// If the tables of the open source were made without the column that identifies a row, writes the statements
/// that add it to `row_script_path` and shows a notice, from which they can be copied. Does nothing if the
/// file has these statements already, so the notice is shown once.
void offer_row_script();

}  // namespace verdane
