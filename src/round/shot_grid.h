#pragma once

#include <QAction>
#include <QStringList>

#include <functional>

#include "controls/control_array.h"
#include "controls/data_grid.h"

namespace verdane {

class choice_menu;
class Form;

/// The grid of the shots of a hole (`details`) with its columns and the menus of its cells. It is not bound
/// at first.
class shot_grid : public data_grid {
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

    /// The menus belong to the window.
    explicit shot_grid(Form& window);

    /// Run when an entry of a menu was chosen, with its number from 1, for the cursor's row.
    std::function<void(int)> club_chosen;
    std::function<void(int)> kind_chosen;
    std::function<void(int)> position_chosen;
    std::function<void(int)> penalty_chosen;
    /// The same for yes (0) and no (1), in the cursor's column.
    std::function<void(int)> yes_or_no_chosen;

    /// The names of the fourteen clubs in their menu.
    void set_club_names(const QStringList& names);
    QString club_name(int club) const;

    /// Sets width and visibility of the columns. A column is at least as wide as its texts need.
    void set_up_columns();

private:
    /// A menu whose entries, numbered from `first`, run `chosen`.
    choice_menu* make_menu(Form& window, QStringView name, control_array<QAction>& entries, int first,
                           const QStringList& captions, const std::function<void(int)>& chosen);
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
