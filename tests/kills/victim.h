#pragma once

#include <QString>

#include "tests/kills/told_hole.h"
#include "tests/support/hand.h"

namespace verdane::testing {

/// Runs the program and enters holes for ever, saying what it does (`last_words.h`), until it is killed.
/// Detailed, the holes are told shot by shot, whatever was told of them before; otherwise figures are
/// typed on the quick page.
int be_the_victim(bool detailed, quint32 seed);

/// Enters the shots of the hole whose empty grid is on screen. The last of them is committed when the hole is
/// left.
void enter_shots(hand& user, int hole, const told_hole& shots);

/// From the start of the program to the only round, on the quick page.
void open_the_round(hand& user);
QString round_window_name();

}  // namespace verdane::testing
