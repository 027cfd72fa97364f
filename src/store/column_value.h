#pragma once

#include <QVariant>

#include "store/tables/columns.h"

/// Conversions between the values of Qt and the types of columns.
namespace verdane {

/// A value converted to a column's type, as an engine does it. A text written to a number column gives its
/// leading number, rounded to nearest (ties to even). Null stays Null. Fails with `overflow` if the column
/// has too few bits.
QVariant converted(const QVariant& value, column_type type);

/// A value as a number: the leading number of a text, 1 for a yes.
double number_of(const QVariant& value);

}  // namespace verdane
