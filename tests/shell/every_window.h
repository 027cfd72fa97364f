#pragma once

#include <QString>

#include <functional>
#include <vector>

#include "tests/support/hand.h"

namespace verdane::testing {

/// A window of the program, and how it is opened from the main window.
struct reachable_window {
    const char* family;
    /// The button that Escape clicks; null in a window without one.
    const char* cancel_button;
    /// Leaves the window open and in front.
    std::function<void(hand&)> open;
};

/// Every window that a command of the program opens, the main window first.
const std::vector<reachable_window>& every_window();

/// The name of the window in the language of this moment.
QString name_of_twin(const reachable_window& window);

/// One row of data for each window that passes the filter and each language, in the columns `window` (index
/// in `every_window`) and `language` (1 French, 2 English).
using window_filter = std::function<bool(const reachable_window&)>;
void every_window_in_both_languages(const window_filter& filter = [](const auto&) { return true; });

/// Runs the program on a store with one course and one round, opens the window, runs the script, and
/// leaves the program. The script may leave the window open.
void in_window(int language, int window, const std::function<void(hand&)>& script);

/// Closes windows by Escape, and answers questions by their last button, down to the main window.
void back_to_main_window(hand& user);

}  // namespace verdane::testing
