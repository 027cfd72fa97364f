#pragma once

#include <QStringList>

#include "hand.h"

/// What is compared between twins, and looked for in each of them.
namespace verdane::testing {

/// Kind and name of every named control of the window at work, in the order in which they were made.
QStringList controls_of_window(hand& user);

/// The names of visible labels, buttons, lists and boxes that have less room than they need.
QStringList clipped_controls(hand& user);

}  // namespace verdane::testing
