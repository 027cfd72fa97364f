#pragma once

namespace verdane {

class f_partners;

/// What the window of the partners does, one routine for each event.
namespace f_partners_func {

/// Opens `rspartners`, binds the grid to it and stands on the first partner.
void load(f_partners& window);

/// Adds a partner with a provisional code and stores it; its row waits for a name.
void add_partner(f_partners& window);

/// A row that was written is about to be left: names are never Null from now on, and the code follows
/// from them.
void before_row_commit();

/// Asks, then removes the current partner. Rounds keep the code.
void remove_partner(f_partners& window);

/// Stores every row, told or not: the first one that lacks a name is told and keeps the window open.
/// A failure keeps nothing open.
void close(f_partners& window);

/// The window goes: stores what is pending and closes `rspartners`. Whatever fails, the window goes.
void unload(f_partners& window);

}  // namespace f_partners_func
}  // namespace verdane
