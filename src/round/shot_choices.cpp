#include "round/shot_choices.h"

#include "controls/events.h"
#include "round/shot_entry.h"
#include "round/shot_grid.h"
#include "round/shot_rows.h"
#include "scoring/words.h"

namespace verdane {

shot_choices::shot_choices(shot_grid& grid, shot_rows& rows, const shot_entry& entry)
    : grid_(grid), rows_(rows), entry_(entry)
{
    on_entry(&shot_grid::club_chosen, &shot_choices::club_chosen);
    on_entry(&shot_grid::kind_chosen, &shot_choices::kind_chosen);
    on_entry(&shot_grid::position_chosen, &shot_choices::position_chosen);
    on_entry(&shot_grid::penalty_chosen, &shot_choices::penalty_chosen);
    on_entry(&shot_grid::yes_or_no_chosen, &shot_choices::yes_or_no_chosen);
    on_entry(&shot_grid::column_updated, &shot_choices::column_updated);
}

void shot_choices::on_entry(void (shot_grid::*entered)(int), void (shot_choices::*routine)(int))
{
    on_signal(grid_, entered, [this, routine](int value) {
        if (rows_.on_a_row())
            (this->*routine)(value);
    });
}

void shot_choices::show_row(int next_column)
{
    grid_.ReBind();
    grid_.set_Col(next_column);
}

void shot_choices::club_chosen(int entry)
{
    rows_.current().set_club(entry, grid_.club_name(entry));
    show_row(shot_grid::distance_column);
}

void shot_choices::kind_chosen(int entry)
{
    rows_.current().set_kind(entry);
    if (entry == putt) {
        Q_EMIT next_shot_wanted();
        // The current row is the new shot, or the same one if the message was shown.
        rows_.current().make_putt();
    }
    show_row(entry == putt ? shot_grid::distance_column : shot_grid::kind_column);
}

void shot_choices::position_chosen(int entry)
{
    rows_.current().set_position(entry);
    show_row(grid_.Col() + 1);
}

void shot_choices::penalty_chosen(int entry)
{
    rows_.current().set_penalty(entry);
    Q_EMIT last_column_chosen();
    grid_.ReBind();
}

/// The entries are yes and no.
void shot_choices::yes_or_no_chosen(int entry)
{
    rows_.current().set_yes_or_no(grid_.bound_model().column(grid_.Col()).ordinal, entry == 0);
    show_row(grid_.Col() + 1);
}

void shot_choices::column_updated(int column)
{
    rows_.current().set_par(entry_.hole().card.par);
    if (column == shot_grid::distance_column && rows_.current().distance_changed() && rows_.on_last_row())
        Q_EMIT next_shot_wanted();
    show_row(entry_.PUT_MODE() ? shot_grid::club_column : shot_grid::unit_column);
}

}  // namespace verdane
