#pragma once

namespace verdane {

class f_partners;

/// The logic of the partner window, one routine for each event, shared by both twins.
namespace f_partners_func {

/// Opens `rspartners`, moves to the first partner and binds the grid.
void load(f_partners& window);

/// Adds a partner with a provisional code and without a name, and stores it.
void add_partner(f_partners& window);

/// Called before a changed row is committed: replaces a Null in the names by the empty text and computes the
/// code from the names.
void before_row_commit();

/// Removes the current partner after a confirmation. Rounds keep the code.
void remove_partner(f_partners& window);

/// Stores every row and closes the window. The first row that lacks a name is refused with a message box
/// and keeps the window open, after all rows were stored. A failure does not keep it open.
void close(f_partners& window);

/// The window is being unloaded: stores what is pending and closes `rspartners`. A failure does not prevent
/// it.
void unload(f_partners& window);

}  // namespace f_partners_func
}  // namespace verdane
