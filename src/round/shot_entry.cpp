#include "round/shot_entry.h"

#include <QLineEdit>
#include <QPushButton>

#include <algorithm>
#include <array>

#include "base/language.h"
#include "base/numbers.h"
#include "controls/boxes.h"
#include "controls/data_grid.h"
#include "controls/failure_guard.h"
#include "records/round_columns.h"
#include "records/round_rows.h"
#include "round/f_new_round.h"
#include "round/round_boxes.h"
#include "round/shot_rows.h"
#include "scoring/shot_words.h"
#include "store/DataEnvironment1.h"

namespace verdane::f_new_round_func {

namespace {

namespace at = shot_rows;

constexpr int club_column = 2;
constexpr int distance_column = 3;

Recordset& shots()
{
    return data_environment().rsStat_rounds;
}

void tell_incomplete(const f_new_round& window, const QString& behind)
{
    tell(window.caption(u"Il faut indiquer le bâton et le type de coup (VRD) pour le coup",
                        u"Please indicate a golf club and the type of shot (VRD) for the shot") +
             behind,
         QMessageBox::Critical);
}

/// Without it the rows are none of this hole's, and nothing is added to them or taken away.
bool hole_is_loaded(const f_new_round& window)
{
    return shots().is_open() && shot_rows::is_loaded(window.date_value, window.hole_shown());
}

/// The shots of a hole are there to be checked and removed. They are not where they could not be opened.
bool has_shots_of_a_hole()
{
    return shots().is_open() && shot_rows::a_hole_is_loaded();
}

/// The card of the hole whose shots are loaded. That is the hole on screen, except on the quick page,
/// where the hole may have changed since its shots were opened.
Round_functions::hole_card card_of_shots(const f_new_round& window)
{
    if (!hole_is_loaded(window) && !shots().empty())
        return Round_functions::read_hole_card(to_int16(shots().value_at(0, at::hole).toDouble()));
    return {figure_of_box(window.text(round_box::length).text()),
            figure_of_box(window.text(round_box::stroke_index).text()),
            figure_of_box(window.text(round_box::par).text())};
}

/// What every new shot starts with: in the fairway, without a penalty.
void start_row(const f_new_round& window, int number, int16 distance)
{
    const int16 length = figure_of_box(window.text(round_box::length).text());
    shots().AddNew();
    shots().Fields(at::faireway).set(position_words[0].in(window.french()));
    shots().Fields(at::fairval).set(in_the_fairway);
    shots().Fields(at::date).set(window.date_value);
    shots().Fields(at::hole).set(window.hole_shown());
    shots().Fields(at::shot).set(number);
    shots().Fields(at::before).set(distance);
    shots().Fields(at::verges).set(length);
}

void reopen()
{
    shots().Update();
    shots().Close();
    shots().Open();
}

void add_first_row(const f_new_round& window)
{
    start_row(window, 1, figure_of_box(window.text(round_box::length).text()));
    reopen();
}

/// The hole has lost all its shots: it shows a blank one again.
void start_hole_again(f_new_round& window)
{
    window.details->unbind();
    add_first_row(window);
    window.details->bind();
    shots().MoveFirst();
    window.details->ReBind();
}

/// Each step is tried, whatever became of the one before.
void load_rows(const QString& statement)
{
    finishes_without_failure([] { shots().Update(); });
    finishes_without_failure([] { shots().Close(); });
    shots().set_Source(statement);
    finishes_without_failure([] {
        shots().Open();
        shots().Requery();
    });
}

/// Shots that could not be read leave the grid empty.
void show_loaded_rows(f_new_round& window)
{
    if (shots().is_open()) {
        if (shots().empty())
            add_first_row(window);
        shots().MoveFirst();
    }
    window.details->bind();
    window.details->show();
}

bool last_is_putt()
{
    return !shots().empty() &&
           to_int16(shots().value_at(shots().RecordCount() - 1, at::shot_type_value).toDouble()) == putt;
}

bool stands_on_blank_top(const f_new_round& window)
{
    return window.details->Row() == 0 && (shots().Fields(at::shot_type_value).int16_or_zero() == 0 ||
                                          shots().Fields(at::stickval).int16_or_zero() == 0);
}

void remove_row()
{
    shots().Delete();
    shots().UpdateBatch();
    if (!shots().empty())
        shots().MoveFirst();
}

/// What the check writes and where it leaves the cursor. `incomplete` takes the number of the incomplete
/// shot as the walk comes to it, so that it stands whatever becomes of that row.
void walk_shots(const f_new_round& window, int& incomplete)
{
    shot_list rows = shot_rows::read();
    if (rows.empty())
        return;
    const shots_check found = verdane::check_shots(rows, card_of_shots(window).yards, units_of_interface());
    shot_rows::write(rows, [&](int row) {
        if (row + 1 == found.incomplete)
            incomplete = found.incomplete;
    });
    if (found.ok)
        shots().MoveLast();
    else
        shots().MoveTo(found.incomplete - 1);
}

void make_putt()
{
    shots().Fields(at::shot_type).set(kind_words[putt - 1].in(is_french));
    shots().Fields(at::shot_type_value).set(putt);
    shots().Fields(at::stick).set(putter_word.toString());
    shots().Fields(at::stickval).set(putter);
    shots().Fields(at::unit).set(units_of_interface().feet);
    shots().Fields(at::faireway).set(blank_word.toString());
    shots().Fields(at::fairval).set(0);
}

void add_shot(f_new_round& window, int16 distance)
{
    start_row(window, shots().RecordCount() + 1, distance);
    shots().Fields(at::normal).set(figure_of_box(window.text(round_box::par).text()));
    if (window.PUT_MODE)
        make_putt();
    shots().MoveLast();
    window.details->ReBind();
    window.details->set_Col(window.PUT_MODE ? distance_column : club_column);
    window.details->take_keyboard();
}

void show_summary(f_new_round& window, const hole_summary& summary)
{
    const auto show = [](QLineEdit& box, int16 value) { box.setText(QString::number(plain(value))); };
    for (int penalty = 1; penalty <= 4; ++penalty)
        show(window.text_s(round_box::of_penalty(penalty)), summary.penalties[penalty].count);
    show(window.text_p(round_box::fairway), summary.fairway);
    show(window.text_p(round_box::sand), summary.sand);
    show(window.text_p(round_box::missed), summary.missed);
    show(window.text_p(round_box::recovery), summary.recovery);
    for (int kind = long_shot; kind <= putt; ++kind)
        show(window.text_vrd(round_box::of_kind(kind)), summary.kinds[kind].count);
}

void note_putt_lengths(const f_new_round& window, const hole_summary& summary)
{
    const int hole = plain(window.hole_shown());
    for (int i = 0; i < lengths_kept; ++i)
        data_environment()
            .rsgames2.Fields(round_columns::putt_len(hole, i + 1))
            .set(summary.putt_lengths[static_cast<std::size_t>(i)]);
}

}  // namespace

bool open_hole_shots(f_new_round& window)
{
    if (window.date_value.isEmpty()) {
        tell(window.caption(u"Veuillez d'abord choisir la date de la ronde.",
                            u"Please enter the round's date."),
             QMessageBox::Critical);
        return false;
    }
    window.details->hide();
    window.details->unbind();
    load_rows(shot_rows::statement_of_hole(window.date_value, window.hole_shown()));
    show_loaded_rows(window);
    return true;
}

bool check_shots(f_new_round& window)
{
    if (!has_shots_of_a_hole())
        return true;
    int incomplete = 0;
    finishes_without_store_failure([&] { walk_shots(window, incomplete); });
    window.details->ReBind();
    if (incomplete == 0)
        return true;
    tell_incomplete(window, u' ' + QString::number(incomplete));
    return false;
}

void drop_blank_shot(f_new_round& window, int16& removed, bool& ok)
{
    const bool loaded = has_shots_of_a_hole();
    const bool blank = loaded && stands_on_blank_top(window);
    if (blank) {
        remove_row();
        window.details->ReBind();
    } else {
        if (loaded && !shots().empty()) {
            shots().MoveFirst();
            shots().Fields(at::normal).set(card_of_shots(window).par);
        }
        ok = check_shots(window);
    }
    if (removed != 0)
        removed = blank ? 1 : 0;
}

bool hole_is_untold()
{
    if (!has_shots_of_a_hole() || shots().RecordCount() != 1)
        return false;
    const std::array told{at::stickval, at::shot_type_value, at::after};
    return std::all_of(told.begin(), told.end(),
                       [](int ordinal) { return shots().value_at(0, ordinal).toInt() == 0; });
}

void drop_untold_shot()
{
    if (!hole_is_untold())
        return;
    shots().MoveFirst();
    remove_row();
}

void next_shot(f_new_round& window)
{
    if (!hole_is_loaded(window))
        return;
    if (shots().empty()) {
        start_hole_again(window);
        return;
    }
    shots().MoveLast();
    shot_list rows = shot_rows::read();
    const next_shot_plan plan = plan_next_shot(rows, units_of_interface());
    if (plan.refused) {
        window.details->ReBind();
        tell_incomplete(window, QString());
        window.details->take_keyboard();
        return;
    }
    window.PUT_MODE = plan.PUT_MODE;
    shot_rows::write(rows);
    finish_hole(window);
    add_shot(window, plan.distance);
}

void remove_shot(f_new_round& window)
{
    if (!hole_is_loaded(window) || !shot_rows::on_a_row()) {
        tell(window.caption(u"Choisissez le coup que vous voulez supprimer.",
                            u"Please select the shot you wish to remove."),
             QMessageBox::Critical);
        return;
    }
    remove_row();
    window.details->ReBind();
    if (!shots().empty())
        check_shots(window);
    window.PUT_MODE = last_is_putt();
}

void finish_hole(f_new_round& window)
{
    if (!hole_is_loaded(window))
        return;
    int16 removed = 0;
    bool ok = true;
    drop_blank_shot(window, removed, ok);
    summarise_hole(window);
    if (shots().empty())
        start_hole_again(window);
}

void summarise_hole(f_new_round& window)
{
    if (!hole_is_loaded(window))
        return;
    shot_list rows = shot_rows::read();
    const hole_summary summary = summarise(rows);
    shot_rows::write(rows);
    window.details->ReBind();
    show_summary(window, summary);
    window.isdetailed = summary.isdetailed;
    note_putt_lengths(window, summary);
}

}  // namespace verdane::f_new_round_func
