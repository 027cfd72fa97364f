#pragma once

#include <QString>

#include "tests/kills/entered_hole.h"
#include "tests/support/hand.h"

namespace verdane::testing {

/// Runs the program and enters holes until it is killed, and prints each step (`run_log.h`). If `detailed`,
/// it replaces the shots of the holes; otherwise it types figures on the quick page.
int run_entering_holes(bool detailed, quint32 seed);

/// Enters the shots of the hole whose empty grid is shown. The last of them is committed when the hole is
/// left.
void enter_shots(hand& user, int hole, const entered_hole& shots);

/// Opens the only round after the program has started, on the quick page.
void open_the_round(hand& user);
QString round_window_name();

}  // namespace verdane::testing
