#include "round/f_new_round.h"

#include <QPushButton>

#include <algorithm>

#include "base/failure_subject.h"
#include "base/language.h"
#include "controls/boxes.h"
#include "controls/events.h"
#include "records/round_subject.h"
#include "round/hole_bar.h"
#include "round/parameters_pane.h"
#include "round/quick_page.h"
#include "round/round_record.h"
#include "round/shot_rows.h"
#include "round/statistics_pane.h"
#include "scoring/round_key.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr int first_hole = 1;

/// The languages differ in icon and title, too.
void show_no_course()
{
    if (is_french)
        show_information(u"Verdane n'a trouvé aucun terrain. Pour créer une ronde il faut definir au moin "
                         u"un terrain"_s,
                         QMessageBox::Critical, u"Verdane"_s);
    else
        show_information(u"Verdane could not find any course. To create a round, you need to define at "
                         u"least one course."_s);
}

}  // namespace

f_new_round::f_new_round(shot_rows& shots)
    : round_form(shots), entry_(*this, panes()), life_cycle_(*this, panes(), entry_)
{
    connect_holes();
    connect_figures();
    connect_window();
    life_cycle_.load();
}

void f_new_round::connect_holes()
{
    hole_bar& holes = panes().holes;
    page_bar& pages = panes().pages;
    holes.set_before_tab_click([this] { return entry_.hole_tab_before_click(); });
    pages.set_before_tab_click([this] { return panes().detailed.finish_typing(); });
    on_signal(holes, &hole_bar::list_changed, [this] { entry_.hole_list_changed(); });
    on_signal(holes, &hole_bar::tab_clicked, [this] { entry_.hole_tab_clicked(); });
    on_signal(pages, &page_bar::tab_clicked, [this] { entry_.page_changed(); });
    on_signal(pages, &page_bar::shots_clicked, [this] { entry_.open_shots_of_hole(); });
    on_signal(pages, &page_bar::putts_clicked, [this] { life_cycle_.report_putts(); });
}

void f_new_round::connect_figures()
{
    quick_page& quick = panes().quick;
    parameters_pane& parameters = panes().parameters;
    on_signal(quick, &quick_page::figure_changed, [this] { entry_.refresh_panel_from_boxes(); });
    on_signal(quick, &quick_page::strokes_changed, [this] { entry_.refresh_score(); });
    on_signal(quick, &quick_page::last_figure_typed, [this] { end_button(ok).setFocus(Qt::TabFocusReason); });
    on_signal(panes().detailed, &detailed_page::summarised,
              [this](const hole_summary& summary) { entry_.show_summary(summary); });
    on_signal(parameters, &parameters_pane::course_changed, [this] { entry_.course_selected(); });
    on_signal(parameters, &parameters_pane::costs_clicked, [this] { life_cycle_.show_costs(); });
}

void f_new_round::connect_window()
{
    for (const int index : {cancel, ok})
        on_click(end_button(index), [this, index] { life_cycle_.on_ok_cancel(index); });
    set_cancel_button(end_button(cancel));
    watch_tab_keys(*this, panes().holes, panes().pages);
}

void f_new_round::show_new_round()
{
    panes().parameters.fill_courses(round_record::walk_courses());
    // This moves the recordsets of the courses to the first one.
    panes().parameters.select_course(0);
}

void f_new_round::show_stored_round(const QString& key)
{
    hole_bar& holes = panes().holes;
    set_date_value(key);
    if (!round_record::has_row_in_games2()) {
        // English in both languages.
        show_information(u"Error : games2 record not found"_s);
        holes.show_hole(first_hole);
        unload();
        return;
    }
    const QString code = round_record::find_holes_of_round(key);
    panes().parameters.fill_courses(round_record::walk_courses());
    round_record::find_course(code);
    panes().parameters.select_course(code);
    load_round_header(*this);
    // The key of a stored round never changes.
    holes.lock_date();
}

void f_new_round::show_header(const round_header& header)
{
    panes().parameters.show_weather(header.weather);
    panes().parameters.show_temperature(header.temperature);
    panes().holes.set_course_name(header.course_name);
    panes().holes.show_tee_off(Verdane_tools::key_date_text(date_value()),
                               Verdane_tools::key_time_text(date_value()));
    panes().parameters.show_costs(header.costs);
}

int16 f_new_round::last_hole() const
{
    return int16(std::max(plain(panes().holes.hole()) - 1, 0));
}

void f_new_round::save_round(bool silent)
{
    entry_.save_round(silent);
}

void f_new_round::ask_and_close(bool skip_prompt)
{
    life_cycle_.ask_and_close(skip_prompt);
}

bool f_new_round::isdetailed() const
{
    return panes().detailed.isdetailed();
}

bool f_new_round::PUT_MODE() const
{
    return panes().detailed.PUT_MODE();
}

bool f_new_round::open_hole_shots()
{
    return panes().detailed.open_hole_shots();
}

bool f_new_round::check_shots()
{
    return panes().detailed.check_shots();
}

blank_shot f_new_round::drop_blank_shot()
{
    return panes().detailed.drop_blank_shot();
}

void f_new_round::saveShots()
{
    panes().shots.commit_all();
}

failure_subject f_new_round::shown_subject() const
{
    // A stored round is loaded before the window has its key.
    if (date_value().isEmpty())
        return Round_functions::subject_of_current_round();
    return {.round = Verdane_tools::key_text(date_value()),
            .course = panes().parameters.course(),
            .hole = plain(panes().holes.hole())};
}

void f_new_round::activated()
{
    life_cycle_.activate();
}

void f_new_round::unloading()
{
    life_cycle_.unload();
}

void f_new_round::close_requested()
{
    life_cycle_.on_close_box();
}

void start_new_round()
{
    if (!round_record::any_course()) {
        show_no_course();
        return;
    }
    round_record::open_games_and_field_info();
    prepare_round_window();
}

void prepare_round_window()
{
    shot_rows shots;
    round_record::add_rows_without_key();
    f_new_round window(shots);
    window.show_new_round();
    window.show_modal();
}

void open_stored_round(const QString& key)
{
    round_record::open_rows(key);
    shot_rows shots;
    shots.open_hole(key, first_hole);
    concerning([&key] { return Round_functions::subject_of_round(key); },
               [&] {
                   f_new_round window(shots);
                   window.show_stored_round(key);
                   window.show_modal();
               });
}

void load_round_header(f_new_round& window)
{
    round_record::find_or_store_costs(window.date_value());
    window.show_header(round_record::header());
}

}  // namespace verdane
