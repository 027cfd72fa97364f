#pragma once

#include <QString>

#include <functional>
#include <vector>

#include "tests/support/hand.h"

namespace verdane::testing {

using leaving = std::function<void(hand&)>;

/// A way out of a window and the words for it.
struct way_out {
    const char* words;
    leaving leave;
};

/// The ways out by the window's own buttons, and the three that every window has: its title bar, Escape,
/// and the command Close of the main window. The name is asked for when the window is left, since it
/// goes by the language.
std::vector<way_out> ways_out(const std::function<QString()>& window, std::vector<way_out> buttons);

/// One row of data a way, in the column `leave`.
void every_way_out(const std::vector<way_out>& ways);

}  // namespace verdane::testing
