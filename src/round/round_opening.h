#pragma once

#include <QString>

namespace verdane {

class f_new_round;

/// Opening the round window on a new or a stored round. The window closes the recordsets that it works on,
/// `rsgames` and `rsfield_info` included, and closes the round list.

/// The command for a new round. Shows a message when there is no course.
void start_new_round();

/// Adds the rows of a new round, without a key and not committed, and opens the window on them. `rsgames` and
/// `rsfield_info` are open, and there is a course.
void prepare_round_window();

/// Opens the window on a stored round and returns when it is closed. `rsgames` and `rsfield_info` are open. A
/// round without a row of `cost` gets one, which the window commits.
void open_stored_round(const QString& key);

/// Shows what is stored for the round as a whole: weather, temperature, date, time and costs. A round without
/// a row of `cost` gets one.
void load_round_header(f_new_round& window);

}  // namespace verdane
