#pragma once

namespace verdane {

class f_c_list;

/// What the course list does, one routine for each event.
namespace f_c_list_func {

/// Opens the recordsets and fills the list and `course_keys`.
void load(f_c_list& window);

/// Click of `Command1`: 0 opens the selected course in the editor, 1 adds one, 2 closes the list,
/// 3 removes the selected course unless a round uses it.
void command(f_c_list& window, int index);

/// Unlocks the menu and closes the window.
void close(f_c_list& window);

/// The window goes: closes its recordsets.
void unload();

}  // namespace f_c_list_func
}  // namespace verdane
