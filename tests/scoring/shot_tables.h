#pragma once

#include <QString>

#include "scoring/hole_shots.h"

/// The shots of a hole as lines of text, for tables of rows before and after.
namespace verdane::testing {

/// A shot a line: kind (L, A, P, or - for none), club, distance left (- for empty), unit (- for empty),
/// then marks: "fair=2", "pen=1", "missed", "sand", "zero", "cal". "L1 60 Verges" is a drive with 60 left.
shot_list shots_of(const QString& lines);

/// The same shots as a check leaves them: number, distance before and left, unit, marks.
QString lines_of(const shot_list& rows);

}  // namespace verdane::testing
