#pragma once

#include <QString>

class QLineEdit;

namespace verdane {

/// Replaces each comma that is typed or pasted into a box by a point, so that a number with a decimal comma
/// keeps its decimals: numbers are read with a point.
void take_comma_as_point(QLineEdit& box);

/// Shows a hint below a box when a comma is typed that its filter refuses. Without the hint, a number that is
/// typed with a decimal comma becomes ten times as large unnoticed.
void explain_decimal_mark(QLineEdit& box, const QString& hint);

}  // namespace verdane
