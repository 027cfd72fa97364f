#pragma once

namespace verdane {
class f_new_round;
}

namespace verdane::f_new_round_func {

/// Prints the putts of the round in the window. On the detailed page the hole on screen is summed up
/// first, so that its putts are among them.
void report_putts(f_new_round& window);

}  // namespace verdane::f_new_round_func
