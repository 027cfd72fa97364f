#include "round/f_new_round_func.h"

#include <QLocale>

#include "controls/boxes.h"
#include "controls/events.h"
#include "controls/failure_guard.h"
#include "controls/main_frame.h"
#include "reference/f_cost.h"
#include "round/detailed_page.h"
#include "round/hole_bar.h"
#include "round/hole_navigation.h"
#include "round/parameters_pane.h"
#include "round/quick_page.h"
#include "round/round_form.h"
#include "round/round_record.h"
#include "round/statistics_pane.h"
#include "round/tee_off.h"
#include "statistics/putt_statistics.h"

namespace verdane::f_new_round_func {

namespace {

constexpr int width_twips = 15360;
constexpr int height_twips = 10020;

void unload_round_list()
{
    if (Form* list = open_form(u"f_games"))
        list->unload();
}

void size_and_place(round_form& window)
{
    // The size fits both pages, so that changing the page does not resize the window.
    window.show_page(round_page::detailed);
    window.take_size({pixels(width_twips), pixels(height_twips)});
    const QSize size_of_detailed_page = window.size();
    window.show_page(round_page::quick);
    window.take_size(size_of_detailed_page);
    current_form = &window;
    Place_and_lock(window);
}

void take_moment(round_form& window, hole_bar& holes, const tee_off_moment& moment)
{
    holes.show_tee_off(QLocale::system().toString(moment.date, QLocale::ShortFormat), moment.time_text());
    round_record::set_key(moment.key());
    window.set_date_value(moment.key());
    holes.lock_date();
}

void open_tee_off_dialog(round_form& window, hole_bar& holes)
{
    f_get_date dialog;
    on_signal(dialog, &f_get_date::moment_chosen,
              [&](const tee_off_moment& moment) { take_moment(window, holes, moment); });
    window.choose_date(dialog);
}

QMessageBox::StandardButton ask_to_save(const round_form& window)
{
    return show_message({window.caption(u"Voulez vous enregistrer les modifications avant de sortir ? ",
                                        u"Do you want to save your changes prior to exit?"),
                         QMessageBox::NoIcon, QString(),
                         QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel});
}

void save_and_close(round_form& window, const round_panes& panes)
{
    window.mark_changed();
    save_round(window, panes, false);
    if (!window.needSave())
        window.unload();
}

void save_and_leave(round_form& window, const round_panes& panes)
{
    save_round(window, panes, true);
    panes.detailed.drop_blank_shot();
    hole_tab_before_click(window, panes);
    Unlock_menu();
    // The summary has changed the boxes after the first save.
    if (panes.detailed.isdetailed())
        save_round(window, panes, true);
    window.unload();
}

/// The shots were checked: from now on only the quick page is shown.
void return_to_quick_page(round_form& window, const round_panes& panes)
{
    if (!window.on_detailed_page())
        return;
    window.allow_quick_page_only();
    page_changed(window, panes);
}

}  // namespace

void load(round_form& window, const round_panes& panes)
{
    panes.totals.hide();
    panes.detailed.show_finish_button(false);
    panes.holes.show_number(1);
    size_and_place(window);
    // `open_stored_round` shows the message about a missing row in `games2`.
    if (!round_record::has_row_in_games2())
        return;
    panes.holes.fill_list();
    panes.parameters.fill_weathers(window.french());
    panes.parameters.fill_partners(round_record::open_partner_lines());
    round_record::move_to_first_course();
    panes.parameters.show_costs(round_record::cost_total());
    panes.parameters.show_weather(0);
    panes.holes.clear_date();
    unload_round_list();
    // Closing the list has unlocked the menu.
    Lock_menu();
}

void activate(round_form& window, const round_panes& panes)
{
    if (round_record::key_is_missing())
        open_tee_off_dialog(window, panes.holes);
    if (round_record::key_is_missing()) {
        ask_and_close(window, panes, true);
        return;
    }
    if (window.on_detailed_page()) {
        panes.detailed.enter_again();
        return;
    }
    panes.shots.reopen();
    panes.quick.focus_first_box();
}

void unload(const round_panes& panes)
{
    panes.detailed.unbind();
    enable_save_and_close(true);
    finishes_without_failure([&] { panes.detailed.drop_untouched_shot(); });
    finishes_without_failure(round_record::close_tables);
    finishes_without_failure([&] { panes.shots.close(); });
    Unlock_menu();
    unload_round_list();
}

void show_costs(const round_panes& panes)
{
    if (!panes.detailed.finish_typing())
        return;
    f_cost costs;
    on_signal(costs, &f_cost::closed_with_total,
              [&panes](const QString& total) { panes.parameters.show_costs(total); });
    costs.show_modal();
}

void report_putts(round_form& window, const round_panes& panes)
{
    if (!panes.detailed.finish_typing())
        return;
    // A summary of a hole without shots would overwrite the figures of the quick page with zeros.
    if (window.on_detailed_page() && !panes.detailed.is_untouched())
        panes.detailed.finish_hole();
    const QString round =
        window.caption(u"Ronde : ", u"Round : ") + panes.holes.date() + u' ' + panes.parameters.course();
    const QString weather = window.caption(u"Conditions atmosphériques : ", u"Weather conditions : ") +
                            panes.parameters.weather();
    Statistics::one_round_putt_report(window.cr2(), round, weather);
}

void on_ok_cancel(round_form& window, const round_panes& panes, int index)
{
    if (!panes.detailed.finish_typing() || !panes.detailed.check_shots())
        return;
    return_to_quick_page(window, panes);
    if (index == round_form::ok) {
        save_and_leave(window, panes);
        return;
    }
    Unlock_menu();
    ask_and_close(window, panes, false);
}

void on_close_box(round_form& window, const round_panes& panes)
{
    // A round without a key has nothing to save.
    if (window.date_value().isEmpty()) {
        ask_and_close(window, panes, true);
        return;
    }
    // A distance that is too large has to be corrected, or dropped by Escape, before anything else.
    if (!panes.detailed.finish_typing())
        return;
    if (panes.detailed.check_shots())
        return_to_quick_page(window, panes);
    ask_and_close(window, panes, false);
}

void ask_and_close(round_form& window, const round_panes& panes, bool skip_prompt)
{
    if (!window.needSave()) {
        window.unload();
        return;
    }
    const auto answer = skip_prompt ? QMessageBox::No : ask_to_save(window);
    if (answer == QMessageBox::Yes)
        save_and_close(window, panes);
    if (answer != QMessageBox::No)
        return;
    round_record::drop_changes();
    panes.shots.drop_changes();
    window.unload();
}

}  // namespace verdane::f_new_round_func
