#pragma once

class QWidget;

namespace verdane {

class data_grid;
class f_new_round;

/// Makes the grid of shots with the menus of its cells. It is not bound yet.
data_grid* make_details(f_new_round& window);

/// Width and visibility of the grid's columns, as on each entering of the page. A column is wider than laid
/// down where its words would not fit.
void set_up_columns(f_new_round& window);

}  // namespace verdane
