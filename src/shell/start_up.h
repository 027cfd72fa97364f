#pragma once

class QApplication;

namespace verdane {

/// Names the program (which settles where its data lives) and gives it its look. To be called once,
/// before anything else.
void prepare_application(QApplication& application);

/// Starts Verdane and runs it until its last window has gone. The exit status of the process: 0, or 1
/// when the language value of the store is damaged. (A failure ends the process elsewhere.)
int run_verdane(QApplication& application);

/// How a start ended.
enum class start_result { running, left, damaged };

/// The entry point: opens the store, settles the language, loads the club names and the round keys
/// and shows the main window.
start_result Main();

/// Copies the names of the 14 clubs from the store to the run-wide list.
void load_club_names();

/// Copies the key of every stored round, in time order, to the run-wide list. Fails with `subscript`
/// when there are more than 366.
void load_round_keys();

}  // namespace verdane
