#pragma once

#include <QString>

#include <functional>

#include "tests/support/hand.h"

/// A walk through every window of the program, for what holds in each of them.
namespace verdane::testing {

/// Called with a window in front, on a page or in a state that has a look of its own. `view` names the state
/// in both languages alike ("f_courses page 2"); `window` is the objectName of the window.
using look_at_view = std::function<void(hand& user, const QString& view, const QString& window)>;

/// Runs the program in a language on a new store with a diary of 20 rounds, and opens every window with each
/// of its pages and states, the language window first.
void visit_every_view(bool french, const look_at_view& look);

}  // namespace verdane::testing
