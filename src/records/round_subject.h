#pragma once

#include <QStringView>

#include "base/failure_subject.h"

/// The round that a failure concerns, as the user knows it: date, time and course.
namespace verdane::Round_functions {

/// The round of a key, with its course, and a hole of it (1 to 18; 0 for none). Reads the row of `games` with
/// a statement of its own, so no recordset is moved. Without a row the course is empty; an empty key gives no
/// round. Fails like any statement.
failure_subject subject_of_round(QStringView key, int hole = 0);

/// The round on the current row of `rsgames`; nothing if it has no key yet. Fails without a current row.
failure_subject subject_of_current_round();

}  // namespace verdane::Round_functions
