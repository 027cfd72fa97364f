#include "round/shot_menus.h"

#include <QAction>
#include <QLineEdit>
#include <QPushButton>

#include "base/language.h"
#include "base/Main_module.h"
#include "controls/choice_menu.h"
#include "controls/data_grid.h"
#include "controls/failure_guard.h"
#include "round/f_new_round.h"
#include "round/round_boxes.h"
#include "round/shot_entry.h"
#include "round/shot_rows.h"
#include "scoring/shot_words.h"
#include "store/DataEnvironment1.h"

namespace verdane::f_new_round_func {

namespace {

namespace at = shot_rows;
namespace shown = details_column;

Recordset& shots()
{
    return data_environment().rsStat_rounds;
}

QString club_name(const f_new_round& window, int club)
{
    return choice_menu::caption_of(window.ms1(club));
}

QString word(const std::array<text_pair, 3>& words, int entry)
{
    return words[static_cast<std::size_t>(entry - 1)].in(is_french);
}

void set_kind(int value, const QString& caption)
{
    shots().Fields(at::shot_type).set(caption);
    shots().Fields(at::shot_type_value).set(value);
}

void set_unit(const text_pair& words)
{
    shots().Fields(at::unit).set(words.in(is_french));
}

/// A club other than the putter: the shot is no putt any more. A row that shows feet keeps them.
void take_club_of_the_course()
{
    if (shots().Fields(at::shot_type_value).int16_or_zero() == putt)
        set_kind(0, blank_word.toString());
    if (!is_feet_word(shots().Fields(at::unit).text_or_empty()))
        set_unit(yards_words);
}

/// The row that is current after the next shot was asked for is the putter's.
void putt_with_the_putter(const f_new_round& window)
{
    shots().Fields(at::stickval).set(putter);
    shots().Fields(at::stick).set(putter_word.toString());
    set_unit(feet_words);
    set_kind(putt, word(kind_words, putt));
    window.details->ReBind();
}

/// True when the current row is the hole's last. Moving on commits the row; a failure of that is not
/// told here.
bool on_the_last_row()
{
    bool last = false;
    finishes_without_failure([&last] {
        shots().MoveNext();
        last = shots().eof();
        shots().MovePrevious();
    });
    return last;
}

void distance_updated(f_new_round& window)
{
    if (shots().Fields(at::stickval).int16_or_zero() != putter) {
        set_unit(yards_words);
        return;
    }
    set_unit(feet_words);
    set_kind(putt, word(kind_words, putt));
    if (on_the_last_row())
        next_shot(window);
}

}  // namespace

void name_clubs(f_new_round& window)
{
    Recordset& names = data_environment().rssticknames;
    names.Open();
    for (int club = 1; club <= club_menu_count; ++club) {
        const QString stored = names.Fields(club - 1).text_or_empty();
        // Names that the golf bag did not keep stand in the menu until the next start all the same.
        choice_menu::set_caption(window.ms1(club),
                                 Main_module::club_names_kept ? stored : Main_module::club_names[club - 1]);
    }
    names.Close();
}

void club_chosen(f_new_round& window, int entry)
{
    if (!shot_rows::on_a_row())
        return;
    shots().Fields(at::stickval).set(entry);
    shots().Fields(at::stick).set(club_name(window, entry));
    if (entry == putter) {
        set_kind(putt, word(kind_words, putt));
        set_unit(feet_words);
    } else {
        take_club_of_the_course();
    }
    window.details->ReBind();
    window.details->set_Col(shown::distance);
}

void kind_chosen(f_new_round& window, int entry)
{
    if (!shot_rows::on_a_row())
        return;
    set_kind(entry, word(kind_words, entry));
    if (entry != putt) {
        window.details->ReBind();
        window.details->set_Col(shown::kind);
        return;
    }
    next_shot(window);
    putt_with_the_putter(window);
    window.details->set_Col(shown::distance);
}

void position_chosen(f_new_round& window, int entry)
{
    if (!shot_rows::on_a_row())
        return;
    shots().Fields(at::fairval).set(entry);
    shots().Fields(at::faireway).set(word(position_words, entry));
    window.details->ReBind();
    window.details->set_Col(window.details->Col() + 1);
}

void penalty_chosen(f_new_round& window, int entry)
{
    if (!shot_rows::on_a_row())
        return;
    const bool none = entry == no_penalty;
    shots().Fields(at::penval).set(none ? 0 : entry);
    shots().Fields(at::penality).set(penalty_words[static_cast<std::size_t>(entry - 1)].in(is_french));
    shots().Fields(at::addpen).set(none ? 0 : 1);
    window.CommandSuiv->setFocus(Qt::TabFocusReason);
    window.details->ReBind();
}

void yes_or_no_chosen(f_new_round& window, bool yes)
{
    if (!shot_rows::on_a_row())
        return;
    data_grid& grid = *window.details;
    shots().Fields(grid.bound_model().column(grid.Col()).field).set(yes);
    grid.ReBind();
    grid.set_Col(grid.Col() + 1);
}

void column_updated(f_new_round& window, int column)
{
    shots().Fields(at::normal).set(figure_of_box(window.text(round_box::par).text()));
    if (column == shown::distance)
        distance_updated(window);
    window.details->ReBind();
    window.details->set_Col(window.PUT_MODE ? shown::club : shown::unit);
}

}  // namespace verdane::f_new_round_func
