#include "round/shot_entry.h"

#include <span>
#include <utility>

#include "base/language.h"
#include "controls/failure_guard.h"
#include "records/Main_module.h"
#include "round/shot_rows.h"
#include "scoring/limits.h"
#include "store/DataEnvironment1.h"

namespace verdane {

shot_entry::shot_entry(shot_rows& rows, std::function<hole_on_screen()> hole)
    : rows_(rows), hole_(std::move(hole))
{
}

bool shot_entry::hole_is_loaded() const
{
    const hole_on_screen hole = hole_();
    return rows_.has_hole(hole.key, hole.number);
}

new_shot shot_entry::shot_of_hole(int number, int16 distance) const
{
    const hole_on_screen hole = hole_();
    return {hole.key, hole.number, number, distance, hole.card.yards};
}

void shot_entry::add_first_shot()
{
    rows_.add_first(shot_of_hole(1, hole_().card.yards));
}

void shot_entry::load_hole()
{
    const hole_on_screen hole = hole_();
    rows_.change_hole(hole.key, hole.number);
    if (!rows_.is_open())
        return;
    if (rows_.empty())
        add_first_shot();
    rows_.move_to(0);
}

Round_functions::hole_card shot_entry::card_of_shots() const
{
    return hole_is_loaded() ? hole_().card : Round_functions::read_hole_card(rows_.hole());
}

int shot_entry::check_shots()
{
    int incomplete = 0;
    finishes_without_store_failure([&] {
        shot_list shots = rows_.read();
        if (shots.empty())
            return;
        const shots_check found = verdane::check_shots(shots, card_of_shots().yards, units_in(is_french));
        if (found.ok) {
            rows_.write(shots);
            rows_.move_to_last();
            return;
        }
        const int place = found.incomplete - 1;
        rows_.write(std::span(shots).first(static_cast<std::size_t>(place)));
        // From here on, a failure does not hide the incomplete shot.
        incomplete = found.incomplete;
        rows_.write(shots);
        rows_.move_to(place);
    });
    return incomplete;
}

bool shot_entry::drop_blank_shot()
{
    if (!rows_.has_hole())
        return false;
    if (rows_.on_first_row() && !rows_.current().is_complete()) {
        rows_.remove_current();
        return true;
    }
    if (!rows_.empty()) {
        rows_.move_to(0);
        rows_.current().set_par(card_of_shots().par);
    }
    return false;
}

void shot_entry::set_put_mode_by_last_shot()
{
    PUT_MODE_ = rows_.last_is_putt();
}

void shot_entry::drop_untouched_shot()
{
    if (!rows_.only_blank_shot())
        return;
    rows_.move_to(0);
    rows_.remove_current();
}

std::optional<int16> shot_entry::prepare_next_shot()
{
    rows_.move_to_last();
    shot_list shots = rows_.read();
    const next_shot_plan plan = plan_next_shot(shots, units_in(is_french));
    if (plan.refused)
        return std::nullopt;
    PUT_MODE_ = plan.PUT_MODE;
    rows_.write(shots);
    return std::make_optional(plan.distance);
}

void shot_entry::add_shot(int16 distance)
{
    rows_.add(shot_of_hole(rows_.count() + 1, distance));
    shot_row added = rows_.current();
    added.set_par(hole_().card.par);
    if (PUT_MODE_) {
        added.make_putt();
        added.clear_position();
    }
    // Commits the shot.
    rows_.move_to_last();
}

std::optional<hole_summary> shot_entry::summarise_hole()
{
    if (!hole_is_loaded())
        return std::nullopt;
    shot_list shots = rows_.read();
    const hole_summary summary = summarise(shots);
    rows_.write(shots);
    isdetailed_ = summary.isdetailed;
    Round_functions::store_putt_lengths(hole_().number, summary.putt_lengths);
    return summary;
}

QStringList shot_entry::club_names()
{
    Recordset& stored = data_environment().rssticknames;
    stored.Open();
    QStringList names;
    for (int club = 0; club < club_count; ++club) {
        const QString name = stored.Fields(club).text_or_empty();
        names << (Main_module::club_names_kept ? name : Main_module::club_names[club]);
    }
    stored.Close();
    return names;
}

}  // namespace verdane
