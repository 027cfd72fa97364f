#pragma once

#include <QStringList>

#include "tests/support/hand.h"
#include "tests/support/languages.h"

/// What tests read from a window, and the recordsets that it has left open.
namespace verdane::testing {

/// The names of visible labels, buttons, combos, frames, tabs and boxes that are smaller than their text, in
/// the active window or in any window (to be called in the window thread).
QStringList clipped_controls(hand& user);
QStringList clipped_controls_of(const QWidget& window);

/// Whether a part of the window is larger than its place and scrolls. Lists and grids, which scroll by
/// themselves, do not count. To be called in the window thread.
bool scrolls(const QWidget& window);

/// The names of the recordsets that are open.
QStringList open_recordsets();

}  // namespace verdane::testing
