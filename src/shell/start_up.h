#pragma once

class QApplication;

namespace verdane {

/// Sets the name of the program, which determines the folder of its data, and its look. To be called once,
/// before anything else.
void prepare_application(QApplication& application);

/// Starts Verdane, runs it until its last window is closed, and returns the exit status of the process: 0, or
/// 1 if the language value of the store is Null. A failure ends the process without returning (`run_event`).
int run_verdane(QApplication& application);

enum class start_result {
    running,  ///< the main window is open
    left,     ///< the user closed the language window without choosing one
    damaged,  ///< the language value is Null
};

/// Opens the store, sets the language, loads the club names and the round keys, and shows the main window.
start_result Main();

}  // namespace verdane
