#pragma once

/// What the user can ask of the main window: one plain routine for each command. Each tests what its
/// window needs, then opens the window of the current language.
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

/// The tool behind the entry that is switched off.
void command_store_clean_up();

/// Save and Close address the window that was at work last; when it is closed, or none was opened yet, a
/// notice says so.
void command_save();
void command_close();

void command_english();
void command_french();
void command_quit();

}  // namespace verdane
