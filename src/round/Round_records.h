#pragma once

#include <QString>

#include "base/counts.h"

namespace verdane {

class f_new_round;

/// How a round comes into the round window and how a hole moves between its boxes and its rows.
///
/// The window closes what it works on when it goes (`rsgames` and `rsfield_info` too), and takes the round
/// list away when it is made and once more when it goes.

/// The command for a new round: refuses when there is no course.
void start_new_round();

/// Adds the rows of a new round, without a key and not committed, and shows the round window on them.
/// Needs `rsgames` and `rsfield_info` open, and at least one course.
void prepare_round_window();

/// Opens a stored round in the round window and returns when the window has gone. Needs `rsgames` and
/// `rsfield_info` open. A round without its row of `cost` gets one, which the window commits.
void open_stored_round(const QString& key);

/// Brings the round of that key into a window just made: its rows, its course, hole 1. False when the
/// round's row of `games2` is missing; the user has been told, and the window is unloaded then (what
/// is called on it afterwards does nothing).
bool load_stored_round(f_new_round& window, const QString& key);

/// Fills what belongs to the whole of a stored round: weather, temperature, date, time, costs. Gives
/// the round a row of `cost` if it has none.
void load_round_header(f_new_round& window);

/// Shows a hole (1 to 18) from the rows.
void load_hole(f_new_round& window, int16 hole);

/// Shows length, par and handicap index of a hole from the current row of `rsfield_info`.
void show_hole_card(f_new_round& window, int16 hole);

/// The hole whose figures are in the boxes.
int16 hole_in_boxes(const f_new_round& window);

/// Puts the boxes into the rows as that hole, the selected partners with them. Nothing is committed.
void store_hole(f_new_round& window, int16 hole);

/// The numbers of the selected partners, rebuilt from nothing.
void store_partners(f_new_round& window);

/// Course, weather and temperature; appends the round's key to `round_keys`, then commits the rows of
/// `games2` and `games`. Fails with `subscript`, before it commits, when that list is full.
void store_round_header(f_new_round& window);

/// Commits the round's three rows and stands on them again; adds the row of `cost` when it is gone.
void commit_round(const QString& key);

/// Puts `rsfield_info` on the course of that code.
void find_in_field_info(const QString& code);

}  // namespace verdane
