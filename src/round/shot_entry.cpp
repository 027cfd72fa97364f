#include "round/shot_entry.h"

#include <algorithm>
#include <array>

#include "base/language.h"
#include "base/numbers.h"
#include "controls/failure_guard.h"
#include "records/Main_module.h"
#include "round/shot_rows.h"
#include "scoring/limits.h"
#include "scoring/words.h"
#include "store/DataEnvironment1.h"
#include "store/tables/games2.h"
#include "store/tables/Stat_rounds.h"

namespace verdane {

namespace {

namespace Stat_rounds = tables::Stat_rounds;

Recordset& shots()
{
    return data_environment().rsStat_rounds;
}

void store_putt_lengths(int16 hole, const hole_summary& summary)
{
    for (int i = 0; i < putt_lengths_kept; ++i)
        data_environment()
            .rsgames2.Fields(tables::games2::putt_len(plain(hole), i + 1))
            .set(summary.putt_lengths[static_cast<std::size_t>(i)]);
}

}  // namespace

shot_entry::shot_entry(shot_rows& rows, bool french, std::function<hole_on_screen()> hole)
    : rows_(rows), french_(french), hole_(std::move(hole))
{
}

bool shot_entry::hole_is_loaded() const
{
    const hole_on_screen hole = hole_();
    return rows_.has_hole(hole.key, hole.number);
}

bool shot_entry::has_shots() const
{
    return !shots().empty();
}

/// In the fairway, without a penalty.
void shot_entry::start_row(int number, int16 distance)
{
    const hole_on_screen hole = hole_();
    shots().AddNew();
    shots().Fields(Stat_rounds::faireway).set(position_words[0].in(french_));
    shots().Fields(Stat_rounds::fairval).set(in_the_fairway);
    shots().Fields(Stat_rounds::date).set(hole.key);
    shots().Fields(Stat_rounds::hole).set(hole.number);
    shots().Fields(Stat_rounds::shot).set(number);
    shots().Fields(Stat_rounds::before).set(distance);
    shots().Fields(Stat_rounds::verges).set(hole.card.yards);
}

void shot_entry::add_first_shot()
{
    start_row(1, hole_().card.yards);
    rows_.commit_first_shot();
}

void shot_entry::load_hole()
{
    const hole_on_screen hole = hole_();
    rows_.change_hole(hole.key, hole.number);
    if (!rows_.is_open())
        return;
    if (shots().empty())
        add_first_shot();
    shots().MoveFirst();
}

Round_functions::hole_card shot_entry::card_of_shots() const
{
    if (!hole_is_loaded() && !shots().empty())
        return Round_functions::read_hole_card(to_int16(shots().value_at(0, Stat_rounds::hole).toDouble()));
    return hole_().card;
}

/// `incomplete` is set before the incomplete row is committed, so that a failure of that commit does not hide
/// it.
void shot_entry::walk_shots(int& incomplete)
{
    shot_list rows = rows_.read();
    if (rows.empty())
        return;
    const shots_check found = verdane::check_shots(rows, card_of_shots().yards, units_in(is_french));
    rows_.write(rows, [&](int row) {
        if (row + 1 == found.incomplete)
            incomplete = found.incomplete;
    });
    if (found.ok)
        shots().MoveLast();
    else
        shots().MoveTo(found.incomplete - 1);
}

int shot_entry::check_shots()
{
    int incomplete = 0;
    finishes_without_store_failure([&] { walk_shots(incomplete); });
    return incomplete;
}

bool shot_entry::drop_blank_shot(int grid_row)
{
    if (!rows_.has_hole())
        return false;
    if (grid_row == 0 && !current_shot::is_complete()) {
        rows_.remove_current();
        return true;
    }
    if (!shots().empty()) {
        shots().MoveFirst();
        current_shot::set_par(card_of_shots().par);
    }
    return false;
}

void shot_entry::remove_shot()
{
    rows_.remove_current();
}

void shot_entry::set_put_mode_by_last_shot()
{
    PUT_MODE_ =
        !shots().empty() &&
        to_int16(shots().value_at(shots().RecordCount() - 1, Stat_rounds::shot_type_value).toDouble()) ==
            putt;
}

bool shot_entry::is_untouched() const
{
    if (!rows_.has_hole() || shots().RecordCount() != 1)
        return false;
    const std::array entered{Stat_rounds::stickval, Stat_rounds::shot_type_value, Stat_rounds::after};
    return std::all_of(entered.begin(), entered.end(),
                       [](int ordinal) { return shots().value_at(0, ordinal).toInt() == 0; });
}

void shot_entry::drop_untouched_shot()
{
    if (!is_untouched())
        return;
    shots().MoveFirst();
    rows_.remove_current();
}

std::optional<int16> shot_entry::prepare_next_shot()
{
    shots().MoveLast();
    shot_list rows = rows_.read();
    const next_shot_plan plan = plan_next_shot(rows, units_in(is_french));
    if (plan.refused)
        return std::nullopt;
    PUT_MODE_ = plan.PUT_MODE;
    rows_.write(rows);
    return std::make_optional(plan.distance);
}

void shot_entry::add_shot(int16 distance)
{
    start_row(shots().RecordCount() + 1, distance);
    current_shot::set_par(hole_().card.par);
    if (PUT_MODE_) {
        current_shot::make_putt();
        current_shot::clear_position();
    }
    shots().MoveLast();
}

std::optional<hole_summary> shot_entry::summarise_hole()
{
    if (!hole_is_loaded())
        return std::nullopt;
    shot_list rows = rows_.read();
    const hole_summary summary = summarise(rows);
    rows_.write(rows);
    isdetailed_ = summary.isdetailed;
    store_putt_lengths(hole_().number, summary);
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
