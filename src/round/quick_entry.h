#pragma once

namespace verdane {
class f_new_round;
}

/// The quick page: a hole told in eleven small numbers, typed in a row.
namespace verdane::quick_entry {

/// Makes the eleven boxes take one digit each and move on, the last one to OK, and makes the window
/// follow each change of a box.
void watch_boxes(f_new_round& window);

}  // namespace verdane::quick_entry
