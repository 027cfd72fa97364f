#include "round/f_new_round_func.h"

#include <QLocale>

#include "controls/boxes.h"
#include "controls/events.h"
#include "controls/failure_guard.h"
#include "controls/Form.h"
#include "controls/look.h"
#include "controls/main_frame.h"
#include "reference/f_cost.h"
#include "round/detailed_page.h"
#include "round/hole_bar.h"
#include "round/parameters_pane.h"
#include "round/quick_page.h"
#include "round/round_entry.h"
#include "round/round_form.h"
#include "round/round_record.h"
#include "round/statistics_pane.h"
#include "round/tee_off.h"
#include "statistics/putt_statistics.h"

namespace verdane {

namespace {

constexpr int width_twips = 15360;
constexpr int height_twips = 10020;

void unload_round_list()
{
    if (Form* list = open_form(u"f_games"))
        list->unload();
}

QMessageBox::StandardButton ask_to_save(const round_form& window)
{
    return show_message({window.caption(u"Voulez vous enregistrer les modifications avant de sortir ? ",
                                        u"Do you want to save your changes prior to exit?"),
                         QMessageBox::NoIcon, QString(),
                         QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel});
}

}  // namespace

f_new_round_func::f_new_round_func(round_form& window, const round_panes& panes, round_entry& entry)
    : window_(window),
      holes_(panes.holes),
      quick_(panes.quick),
      detailed_(panes.detailed),
      parameters_(panes.parameters),
      totals_(panes.totals),
      shots_(panes.shots),
      entry_(entry)
{
}

void f_new_round_func::load()
{
    totals_.hide();
    detailed_.show_finish_button(false);
    size_and_place();
    // `f_new_round::show_stored_round` shows the message about a missing row in `games2`.
    if (!round_record::has_row_in_games2())
        return;
    holes_.fill_list();
    parameters_.fill_weathers(window_.french());
    parameters_.fill_partners(round_record::open_and_walk_partners());
    round_record::move_to_first_course();
    parameters_.show_costs(round_record::cost_total());
    parameters_.show_weather(0);
    holes_.clear_date();
    entry_.show_places_left();
    unload_round_list();
    // The list unlocks the menu when it is closed.
    Lock_menu();
}

void f_new_round_func::size_and_place()
{
    // The size fits both pages, so that changing the page does not resize the window.
    window_.show_page(round_page::detailed);
    window_.take_size({pixels(width_twips), pixels(height_twips)});
    const QSize size_of_detailed_page = window_.size();
    window_.show_page(round_page::quick);
    window_.take_size(size_of_detailed_page);
    current_form = &window_;
    Place_and_lock(window_);
}

void f_new_round_func::activate()
{
    if (choosing_date_)
        return;
    if (round_record::key_is_missing())
        open_tee_off_dialog();
    if (round_record::key_is_missing()) {
        ask_and_close(true);
        return;
    }
    if (entry_.on_detailed_page()) {
        detailed_.enter_again();
        return;
    }
    shots_.reopen();
    quick_.focus_first_box();
}

void f_new_round_func::open_tee_off_dialog()
{
    f_get_date dialog;
    on_signal(dialog, &f_get_date::moment_chosen,
              [this](const tee_off_moment& moment) { take_moment(moment); });
    on_signal(dialog, &f_get_date::canceled, [this] { get_date_canceled_ = true; });
    choosing_date_ = true;
    dialog.show_modal();
    choosing_date_ = false;
}

void f_new_round_func::take_moment(const tee_off_moment& moment)
{
    holes_.show_tee_off(QLocale::system().toString(moment.date, QLocale::ShortFormat), moment.time_text());
    round_record::set_key(moment.key());
    window_.set_date_value(moment.key());
    holes_.lock_date();
}

void f_new_round_func::unload()
{
    detailed_.unbind();
    enable_save_and_close(true);
    finishes_without_failure([this] { detailed_.drop_untouched_shot(); });
    finishes_without_failure(round_record::close_tables);
    finishes_without_failure([this] { shots_.close(); });
    Unlock_menu();
    unload_round_list();
}

void f_new_round_func::show_costs()
{
    if (!detailed_.finish_typing())
        return;
    f_cost costs;
    on_signal(costs, &f_cost::closed_with_total,
              [this](const QString& total) { parameters_.show_costs(total); });
    costs.show_modal();
}

void f_new_round_func::report_putts()
{
    if (!detailed_.finish_typing())
        return;
    // A summary of a hole without shots would overwrite the figures of the quick page with zeros.
    if (entry_.on_detailed_page() && !detailed_.is_untouched())
        detailed_.finish_hole();
    const QString round =
        window_.caption(u"Ronde : ", u"Round : ") + holes_.date() + u' ' + parameters_.course();
    const QString weather =
        window_.caption(u"Conditions atmosphériques : ", u"Weather conditions : ") + parameters_.weather();
    Statistics::one_round_putt_report(window_.cr2(), round, weather);
}

void f_new_round_func::on_ok_cancel(int index)
{
    if (!detailed_.finish_typing() || !detailed_.check_shots())
        return;
    entry_.return_to_quick_page();
    if (index == round_form::ok) {
        save_and_leave();
        return;
    }
    Unlock_menu();
    ask_and_close(false);
}

void f_new_round_func::save_and_leave()
{
    entry_.save_round(true);
    detailed_.drop_blank_shot();
    entry_.hole_tab_before_click();
    Unlock_menu();
    // The summary has changed the boxes after the first save.
    if (detailed_.isdetailed())
        entry_.save_round(true);
    window_.unload();
}

void f_new_round_func::on_close_box()
{
    // A round without a key has nothing to save.
    if (window_.date_value().isEmpty()) {
        ask_and_close(true);
        return;
    }
    // A distance that is too large has to be corrected, or dropped by Escape, before anything else.
    if (!detailed_.finish_typing())
        return;
    if (detailed_.check_shots())
        entry_.return_to_quick_page();
    ask_and_close(false);
}

void f_new_round_func::ask_and_close(bool skip_prompt)
{
    if (!entry_.needSave()) {
        window_.unload();
        return;
    }
    const auto answer = skip_prompt ? QMessageBox::No : ask_to_save(window_);
    if (answer == QMessageBox::Yes) {
        entry_.save_round(false);
        if (!entry_.needSave())
            window_.unload();
    } else if (answer == QMessageBox::No) {
        round_record::drop_changes();
        shots_.drop_changes();
        window_.unload();
    }
}

}  // namespace verdane
