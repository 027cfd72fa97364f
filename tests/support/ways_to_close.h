#pragma once

#include <QString>

#include <functional>
#include <vector>

#include "tests/support/hand.h"

namespace verdane::testing {

using leaving = std::function<void(hand&)>;

/// A way to leave a window, and the name of its row of data.
struct way_to_close {
    const char* name;
    leaving leave;
};

/// The given buttons, and the three ways that every window has: its title bar, Escape, and the command Close
/// of the main window. `window` returns the name of the window and is called when the window is left, because
/// the name depends on the language.
std::vector<way_to_close> ways_to_close(const std::function<QString()>& window,
                                        std::vector<way_to_close> buttons);

/// One row of data for each way, in the column `leave`.
void every_way_to_close(const std::vector<way_to_close>& ways);

}  // namespace verdane::testing
