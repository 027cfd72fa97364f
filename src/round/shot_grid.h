#pragma once

#include <QAction>
#include <QStringList>

#include "controls/control_array.h"
#include "controls/data_grid.h"

namespace verdane {

class choice_menu;
class Form;
class shot_rows;

/// The grid of the shots of a hole (`details`) with its columns and the menus of its cells. It is not bound
/// at first.
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

    /// The menus belong to the window. `rows` must outlive the grid.
    shot_grid(Form& window, shot_rows& rows);

    /// The names of the fourteen clubs in their menu.
    void set_club_names(const QStringList& names);
    QString club_name(int club) const;

    /// Sets width and visibility of the columns. A column is at least as wide as its texts need.
    void set_up_columns();

Q_SIGNALS:
    /// An entry of a menu was chosen for the cursor's row. Entries count from 1.
    void club_chosen(int entry);
    void kind_chosen(int entry);
    void position_chosen(int entry);
    void penalty_chosen(int entry);
    /// The same for yes (0) and no (1), in the cursor's column.
    void yes_or_no_chosen(int entry);

private:
    using entry_signal = void (shot_grid::*)(int);

    /// A menu whose entries, numbered from `first`, emit `chosen`.
    choice_menu* make_menu(Form& window, QStringView name, control_array<QAction>& entries, int first,
                           const QStringList& captions, entry_signal chosen);
    void add_menus(Form& window);
    QStringList words_of_cells(int column) const;
    int width_of_words(int column) const;

    bool french_;
    control_array<QAction> club_entries_{u"ms1"};
    control_array<QAction> kind_entries_{u"mshots"};
    control_array<QAction> yes_no_entries_{u"mb"};
    control_array<QAction> position_entries_{u"ma"};
    control_array<QAction> penalty_entries_{u"mp"};
};

}  // namespace verdane
