#pragma once

/// The commands of the menu and the toolbar (`main_menu.cpp` has the table of both). A command that opens a
/// window checks its precondition first, shows a message box if it is not met, and opens the twin of the
/// current language otherwise.
namespace verdane {

void command_new_round();
void command_round_list();
void command_course_list();
void command_scorecard();
void command_golf_bag();
void command_club_statistics();
void command_putt_statistics();
void command_round_statistics();
void command_cost_statistics();
void command_partners();
void command_about();

/// The command of the hidden menu entry `mcoh`.
void command_store_clean_up();

/// Save and Close act on `current_form`. If that window is closed, or none was opened yet, they show a
/// notice.
void command_save();
void command_close();

void command_english();
void command_french();
void command_quit();

}  // namespace verdane
