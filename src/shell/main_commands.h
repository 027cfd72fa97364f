#pragma once

/// The commands of the menu and the toolbar; `main_menu.cpp` has the table of both. A command that opens a
/// window opens the twin of the current language. If it needs a stored course or round and there is none, it
/// shows a message box instead.
namespace verdane {

/// Reads at most one row, on a recordset of its own.
bool a_course_is_stored();

void command_new_round();         ///< needs a course
void command_round_list();        ///< needs a round
void command_course_list();       ///< needs nothing
void command_scorecard();         ///< needs a course
void command_golf_bag();          ///< needs nothing
void command_club_statistics();   ///< needs a round
void command_putt_statistics();   ///< needs a round
void command_round_statistics();  ///< needs a round
void command_cost_statistics();   ///< needs a round
void command_partners();          ///< needs nothing
void command_about();             ///< needs nothing

void command_english();         ///< changes the language to English
void command_french();          ///< changes the language to French
void command_save();            ///< saves in `current_form`; a notice if that window is not open
void command_close();           ///< closes `current_form`; a notice if that window is not open
void command_store_clean_up();  ///< removes shots without a round; its menu entry `mcoh` is hidden
void command_quit();            ///< closes the main window

}  // namespace verdane
