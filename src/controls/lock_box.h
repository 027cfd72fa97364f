#pragma once

#include <memory>

#include "store/lock_wait.h"

namespace verdane {

/// The notice that another program has locked the diary: a modal box above the active window. Its button, or
/// Escape, stops the wait. No other key does, because keys that are typed while the box appears are meant for
/// the window below.
std::unique_ptr<lock_notice> make_lock_box();

}  // namespace verdane
