#include "round/shot_choices.h"

#include <utility>

#include "controls/events.h"
#include "round/current_shot.h"
#include "round/shot_grid.h"
#include "scoring/words.h"

namespace verdane {

shot_choices::shot_choices(shot_grid& grid, const shot_rows& rows, const shot_entry& entry,
                           std::function<hole_on_screen()> hole)
    : grid_(grid), rows_(rows), entry_(entry), hole_(std::move(hole))
{
    on_signal(grid_, &shot_grid::club_chosen, [this](int chosen) { club_chosen(chosen); });
    on_signal(grid_, &shot_grid::kind_chosen, [this](int chosen) { kind_chosen(chosen); });
    on_signal(grid_, &shot_grid::position_chosen, [this](int chosen) { position_chosen(chosen); });
    on_signal(grid_, &shot_grid::penalty_chosen, [this](int chosen) { penalty_chosen(chosen); });
    on_signal(grid_, &shot_grid::yes_or_no_chosen, [this](int chosen) { yes_or_no_chosen(chosen == 0); });
    on_signal(grid_, &shot_grid::column_updated, [this](int column) { column_updated(column); });
}

void shot_choices::club_chosen(int entry)
{
    if (!rows_.on_a_row())
        return;
    current_shot::set_club(entry, grid_.club_name(entry));
    grid_.ReBind();
    grid_.set_Col(shot_grid::distance_column);
}

void shot_choices::kind_chosen(int entry)
{
    if (!rows_.on_a_row())
        return;
    current_shot::set_kind(entry);
    if (entry == putt) {
        Q_EMIT next_shot_wanted();
        // The current row is the new shot, or the same one if the message was shown.
        current_shot::make_putt();
    }
    grid_.ReBind();
    grid_.set_Col(entry == putt ? shot_grid::distance_column : shot_grid::kind_column);
}

void shot_choices::position_chosen(int entry)
{
    if (!rows_.on_a_row())
        return;
    current_shot::set_position(entry);
    grid_.ReBind();
    grid_.set_Col(grid_.Col() + 1);
}

void shot_choices::penalty_chosen(int entry)
{
    if (!rows_.on_a_row())
        return;
    current_shot::set_penalty(entry);
    Q_EMIT last_column_chosen();
    grid_.ReBind();
}

void shot_choices::yes_or_no_chosen(bool yes)
{
    if (!rows_.on_a_row())
        return;
    current_shot::set_yes_or_no(grid_.bound_model().column(grid_.Col()).field, yes);
    grid_.ReBind();
    grid_.set_Col(grid_.Col() + 1);
}

void shot_choices::column_updated(int column)
{
    current_shot::set_par(hole_().card.par);
    if (column == shot_grid::distance_column && current_shot::distance_changed())
        Q_EMIT next_shot_wanted();
    grid_.ReBind();
    grid_.set_Col(entry_.PUT_MODE() ? shot_grid::club_column : shot_grid::unit_column);
}

}  // namespace verdane
