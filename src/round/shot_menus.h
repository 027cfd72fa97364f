#pragma once

class QAction;

namespace verdane {

class choice_menu;
class f_new_round;

/// What is chosen from the pop-up menus of the shot grid, and what the grid tells.
namespace f_new_round_func {

/// The columns of the grid, hidden ones included.
namespace details_column {
constexpr int hole = 0;
constexpr int shot = 1;
constexpr int club = 2;
constexpr int distance = 3;
constexpr int unit = 4;
constexpr int kind = 5;
constexpr int beyond = 6;
constexpr int missed = 7;
constexpr int sand = 8;
constexpr int zero = 9;
constexpr int position = 10;
constexpr int penalty = 11;
constexpr int shot_again = 12;
}  // namespace details_column

/// Takes the names of the clubs from the store into their menu.
void name_clubs(f_new_round& window);

/// An entry (from 1) of a menu was chosen for the row and column of the cursor.
void club_chosen(f_new_round& window, int entry);
void kind_chosen(f_new_round& window, int entry);
void position_chosen(f_new_round& window, int entry);
void penalty_chosen(f_new_round& window, int entry);
/// Yes or no, for the column of the cursor.
void yes_or_no_chosen(f_new_round& window, bool yes);

/// A cell was typed into; its row is the current one.
void column_updated(f_new_round& window, int column);

}  // namespace f_new_round_func
}  // namespace verdane
