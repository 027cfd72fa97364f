#pragma once

#include "tests/support/diary.h"

/// The diary that the tests of the selection window select from.
namespace verdane::testing {

/// Adds three rounds on two courses, the second one incomplete, and two partners. The last round's course has
/// a name longer than the width that shorter names are padded to.
void add_three_rounds(const diary& book);

}  // namespace verdane::testing
