#pragma once

#include <QObject>

namespace verdane {

class shot_entry;
class shot_grid;
class shot_rows;

/// Stores what the user chooses from the menus of the grid or types into its cells, in the shot under the
/// cursor, and moves the cursor to the next cell.
class shot_choices : public QObject {
    Q_OBJECT

public:
    /// The arguments must outlive the object.
    shot_choices(shot_grid& grid, shot_rows& rows, const shot_entry& entry);

Q_SIGNALS:
    /// The next shot has to be added: the last row is a putt whose distance was typed, or putt was chosen.
    /// The current row is the new shot afterwards, or the same one if it was refused.
    void next_shot_wanted();
    /// The penalty was chosen, the last column of a shot.
    void last_column_chosen();

private:
    /// Runs a routine on a signal of the grid, unless there is no current row.
    void on_entry(void (shot_grid::*entered)(int), void (shot_choices::*routine)(int));
    void club_chosen(int entry);
    void kind_chosen(int entry);
    void position_chosen(int entry);
    void penalty_chosen(int entry);
    void yes_or_no_chosen(int entry);
    void column_updated(int column);
    void show_row(int next_column);

    shot_grid& grid_;
    shot_rows& rows_;
    const shot_entry& entry_;
};

}  // namespace verdane
