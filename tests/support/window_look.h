#pragma once

#include <QStringList>

#include "tests/support/hand.h"
#include "tests/support/languages.h"

/// What the tests of a window look at: its controls, and what it left open.
namespace verdane::testing {

/// Kind and name of every named control of the window at work, in the order in which they were made.
QStringList controls_of_window(hand& user);

/// The names of visible labels, buttons, lists, tabs and boxes that have less room than they need: of the
/// window at work, or of any window (to be called in the window thread).
QStringList clipped_controls(hand& user);
QStringList clipped_controls_of(const QWidget& window);

/// Whether a part of the window has no room and scrolls; lists and grids that scroll by themselves apart. To
/// be called in the window thread.
bool scrolls(const QWidget& window);

/// The names of the recordsets that are open.
QStringList open_recordsets();

}  // namespace verdane::testing
