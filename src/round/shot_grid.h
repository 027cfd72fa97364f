#pragma once

#include <QAction>
#include <QStringList>

#include "controls/control_array.h"
#include "controls/data_grid.h"

namespace verdane {

class choice_menu;
class Form;
class shot_entry;
class shot_rows;

/// The grid of the shots of a hole (`details`) with its columns and the menus of its cells. It is not bound
/// at first.
///
/// What the user chooses from a menu or types into a cell is stored in the shot under the cursor. Then the
/// cursor moves to the next cell. Without a current row nothing is stored.
class shot_grid : public data_grid {
    Q_OBJECT

public:
    /// The columns, hidden ones included.
    enum grid_column {
        hole_column,
        shot_column,
        club_column,
        distance_column,
        unit_column,
        kind_column,
        beyond_column,
        missed_column,
        sand_column,
        zero_column,
        position_column,
        penalty_column,
        shot_again_column
    };

    /// The menus belong to the window. `rows` and `entry` must outlive the grid.
    shot_grid(Form& window, shot_rows& rows, const shot_entry& entry);

    /// The names of the fourteen clubs in their menu.
    void set_club_names(const QStringList& names);

    /// Sets width and visibility of the columns. A column is at least as wide as its texts need.
    void set_up_columns();

Q_SIGNALS:
    /// The next shot has to be added: the last row is a putt whose distance was typed, or putt was chosen.
    /// The current row is the new shot afterwards, or the same one if it was refused.
    void next_shot_wanted();
    /// The penalty was chosen, the last column of a shot.
    void last_column_chosen();

private:
    using entry_routine = void (shot_grid::*)(int);

    void add_menus(Form& window);
    /// A menu whose entries, numbered from `first`, run a routine with their number.
    choice_menu* make_menu(Form& window, QStringView name, control_array<QAction>& entries, int first,
                           const QStringList& captions, entry_routine chosen);
    /// Does nothing without a current row.
    void run_on_row(entry_routine routine, int value);
    QStringList words_of_cells(int column) const;
    int width_of_words(int column) const;

    void club_chosen(int entry);
    void kind_chosen(int entry);
    void position_chosen(int entry);
    void penalty_chosen(int entry);
    /// Entry 0 is yes. The column is that of the cursor.
    void yes_or_no_chosen(int entry);
    /// A text was typed into that column.
    void cell_typed(int column);
    void show_row(int next_column);

    shot_rows& rows_;
    const shot_entry& entry_;
    bool french_;
    control_array<QAction> club_entries_{u"ms1"};
    control_array<QAction> kind_entries_{u"mshots"};
    control_array<QAction> yes_no_entries_{u"mb"};
    control_array<QAction> position_entries_{u"ma"};
    control_array<QAction> penalty_entries_{u"mp"};
};

}  // namespace verdane
