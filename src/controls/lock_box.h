#pragma once

#include <memory>

#include "store/lock_wait.h"

namespace verdane {

/// The notice that another program holds the diary: a box above the window at work, which takes no input
/// meanwhile. Its button gives up, as Escape does; no other key does, because what is being typed when the
/// box appears is not meant for it.
std::unique_ptr<lock_notice> make_lock_box();

}  // namespace verdane
