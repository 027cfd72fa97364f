#include "statistics/f_date_range_func.h"

#include "base/failure_subject.h"
#include "controls/boxes.h"
#include "controls/Form.h"
#include "controls/main_frame.h"
#include "scoring/round_key.h"
#include "statistics/club_statistics.h"
#include "statistics/cost_statistics.h"
#include "statistics/f_date_range.h"
#include "statistics/putt_statistics.h"
#include "statistics/round_statistics.h"

namespace verdane::f_date_range_func {

namespace {

void stop_without_rounds(f_date_range& window)
{
    show_information(window.caption(u"Il n'y a pas de ronde enregistrée", u"Verdane did not find any round"),
                     QMessageBox::Information);
    window.unload();
}

clause_form form_of(const f_date_range& window)
{
    return window.mode() == statistics_mode::putt ? clause_form::alone : clause_form::appended;
}

/// With no weather chosen, the club and putt reports show the entry of the list, the others a text of their
/// own.
unfiltered_texts texts_of(const f_date_range& window)
{
    unfiltered_texts texts{window.caption(u"TOUS LES PARTENAIRES", u"ALL PARTNERS"),
                           window.caption(u"TOUS LES TERRAINS", u"ALL COURSES")};
    if (window.mode() == statistics_mode::round || window.mode() == statistics_mode::cost)
        texts.weather = window.caption(u" TOUTES", u" ALL");
    return texts;
}

/// Calls a statistic for the selection of the window. A failure that names no round of its own names the
/// first and the last one of the selection.
template <typename Statistic>
void run(const f_date_range& window, Statistic statistic)
{
    const selection_arguments chosen = selection_of(window);
    concerning(
        [&chosen] {
            return failure_subject{.round = Verdane_tools::key_text(chosen.from_key),
                                   .last_round = Verdane_tools::key_text(chosen.to_key)};
        },
        [&] { statistic(chosen); });
}

}  // namespace

void load(f_date_range& window)
{
    Statistics::empty_cost_report();
    current_form = &window;
    Place_and_lock(window);
    window.fill_filters();
    if (!window.fill_round_lists())
        stop_without_rounds(window);
}

selection_arguments selection_of(const f_date_range& window)
{
    return window.selection(form_of(window), texts_of(window));
}

void run_club_statistics(f_date_range& window)
{
    const run_controls controls = window.controls_for(window.cr1());
    run(window, [&](const selection_arguments& chosen) { Statistics::club_statistics(chosen, {&controls}); });
}

void run_round_statistics(f_date_range& window)
{
    run(window, [&](const selection_arguments& chosen) {
        Statistics::round_statistics(chosen, window.controls_for(window.cr2()));
    });
}

void run_cost_statistics(f_date_range& window)
{
    run(window, [&](const selection_arguments& chosen) {
        Statistics::cost_statistics(chosen, window.controls_for(window.cr2()));
    });
}

void run_putt_statistics(f_date_range& window)
{
    run(window, [&](const selection_arguments& chosen) {
        Statistics::putt_statistics(chosen, window.controls_for(window.cr3()));
    });
}

void cancel(f_date_range& window)
{
    Unlock_menu();
    unload_and_unlock(window);
}

void unload_and_unlock(f_date_range& window)
{
    window.unload();
    Unlock_menu();
}

void unload()
{
    Unlock_menu();
}

}  // namespace verdane::f_date_range_func
