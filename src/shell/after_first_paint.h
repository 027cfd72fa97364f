#pragma once

#include <functional>

class QWidget;

namespace verdane {

/// Runs a routine once, as soon as the window has painted itself for the first time: for what a start has
/// to do, but nobody has to wait for.
void after_first_paint(QWidget& window, std::function<void()> routine);

}  // namespace verdane
