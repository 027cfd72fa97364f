#pragma once

#include <QString>
#include <QVariant>

#include <optional>
#include <vector>

#include "store/schema.h"

/// A table as a CSV file: a first line with the names of its columns, then a line for each row. A text is
/// between quotes, a number is not, and Null is no value at all.
namespace verdane {

/// The name of the file of a table.
QString csv_name_of(const table& named);

/// The first line, with its line end.
QString csv_heads_of(const table& written);

/// The line of a row, with its line end. A number has the digits with which it is read back unchanged, with a
/// point as decimal mark. No value if a column has bytes that are no text.
std::optional<QString> csv_line_of(const std::vector<QVariant>& row);

}  // namespace verdane
