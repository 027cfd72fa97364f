#pragma once

#include <QString>
#include <QStringList>

/// The checks of the figures of a hole in the course editor. A text passes if it is numeric and its value is
/// allowed; 0 means that the figure is not known yet and always passes.
namespace verdane {

enum class hole_refusal { none, not_numeric, index_of_other_hole, index_too_high, no_par };

hole_refusal check_yards(const QString& text);

/// `others` are the texts of the other seventeen boxes, in the order of the holes. Values are compared as
/// they are stored, rounded half to even. A negative value passes. Fails with `overflow` on another box whose
/// number exceeds 16 bits.
hole_refusal check_stroke_index(const QString& text, const QStringList& others);

/// 3 to 5, before rounding: 0.4 would be stored as 0, but is not a par.
hole_refusal check_par(const QString& text);

}  // namespace verdane
