#pragma once

namespace verdane {

class f_c_list;

/// The logic of the course list, one routine for each event, shared by both twins.
namespace f_c_list_func {

/// Opens the recordsets and fills the list and `course_keys`.
void load(f_c_list& window);

/// Click of a button by its `f_c_list::button`: opens the selected course in the editor, adds one, closes
/// the list, or removes the selected course unless a round uses it.
void command(f_c_list& window, int index);

/// Unlocks the menu and closes the window.
void close(f_c_list& window);

/// The window is being unloaded: closes its recordsets and unlocks the menu.
void unload();

}  // namespace f_c_list_func
}  // namespace verdane
