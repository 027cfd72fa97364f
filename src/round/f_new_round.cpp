#include "round/f_new_round.h"

#include <QPushButton>

#include "base/language.h"
#include "controls/boxes.h"
#include "controls/events.h"
#include "round/detailed_page.h"
#include "round/f_new_round_func.h"
#include "round/hole_bar.h"
#include "round/hole_navigation.h"
#include "round/parameters_pane.h"
#include "round/quick_page.h"
#include "round/round_record.h"
#include "round/shot_rows.h"
#include "round/statistics_pane.h"
#include "scoring/round_key.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr std::int16_t first_hole = 1;

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

void refuse_without_row_in_games2(f_new_round& window)
{
    show_information(u"Error : games2 record not found"_s);
    window.set_hole_in_boxes(first_hole);
    window.unload();
}

/// Finds the rows of the round and its course, and selects hole 1. False, after a message, when the round has
/// no row in `games2`; the window is closed then.
bool load_stored_round(f_new_round& window, const QString& key)
{
    window.set_date_value(key);
    if (!round_record::has_row_in_games2()) {
        refuse_without_row_in_games2(window);
        return false;
    }
    const QString code = round_record::find_holes_of_round(key);
    window.fill_courses(round_record::course_lines());
    round_record::find_course(code);
    window.show_stored_hole(first_hole, code);
    return true;
}

}  // namespace

f_new_round::f_new_round(shot_rows& shots) : round_form(shots)
{
    connect_panes();
    connect_window();
    f_new_round_func::load(*this, panes());
}

void f_new_round::connect_panes()
{
    namespace func = f_new_round_func;
    hole_bar& holes = panes().holes;
    page_bar& pages = panes().pages;
    quick_page& quick = panes().quick;
    holes.before_tab_click = [this] { return func::hole_tab_before_click(*this, panes()); };
    pages.before_tab_click = [this] { return panes().detailed.finish_typing(); };
    on_signal(holes, &hole_bar::list_changed, [this] { func::hole_chosen(*this, panes()); });
    on_signal(holes, &hole_bar::tab_clicked, [this] { func::hole_tab_clicked(*this, panes()); });
    on_signal(pages, &page_bar::tab_clicked, [this] { func::page_changed(*this, panes()); });
    on_signal(pages, &page_bar::shots_clicked, [this] { func::open_shots_of_hole(*this, panes()); });
    on_signal(pages, &page_bar::putts_clicked, [this] { func::report_putts(*this, panes()); });
    on_signal(quick, &quick_page::figure_changed,
              [this] { func::refresh_panel(*this, panes(), panes().quick.figures()); });
    on_signal(quick, &quick_page::strokes_changed,
              [this] { func::refresh_score(panes().quick, panes().totals); });
    on_signal(quick, &quick_page::last_figure_typed, [this] { end_button(ok).setFocus(Qt::TabFocusReason); });
    on_signal(panes().detailed, &detailed_page::summarised,
              [this](const hole_summary& summary) { func::show_summary(panes().quick, summary); });
    on_signal(panes().parameters, &parameters_pane::course_changed,
              [this] { func::course_selected(*this, panes()); });
    on_signal(panes().parameters, &parameters_pane::costs_clicked, [this] { func::show_costs(panes()); });
}

void f_new_round::connect_window()
{
    for (const int index : {cancel, ok})
        on_click(end_button(index), [this, index] { f_new_round_func::on_ok_cancel(*this, panes(), index); });
    set_cancel_button(end_button(cancel));
    watch_tab_keys(*this, panes().holes, panes().pages);
}

void f_new_round::fill_courses(const std::vector<course_line>& courses)
{
    panes().parameters.fill_courses(courses);
}

void f_new_round::select_course(int list_index)
{
    panes().parameters.select_course(list_index);
}

void f_new_round::show_stored_hole(int16 hole, const QString& course_code)
{
    panes().holes.select_in_list(plain(hole));
    panes().parameters.select_course(course_code);
    panes().holes.set_hole_in_boxes(hole);
}

void f_new_round::set_hole_in_boxes(int16 hole)
{
    panes().holes.set_hole_in_boxes(hole);
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

void f_new_round::lock_date()
{
    panes().holes.lock_date();
}

void f_new_round::save_round(bool silent)
{
    f_new_round_func::save_round(*this, panes(), silent);
}

void f_new_round::ask_and_close(bool skip_prompt)
{
    f_new_round_func::ask_and_close(*this, panes(), skip_prompt);
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

void f_new_round::activated()
{
    if (!choosing_date())
        f_new_round_func::activate(*this, panes());
}

void f_new_round::unloading()
{
    f_new_round_func::unload(panes());
}

void f_new_round::close_requested()
{
    f_new_round_func::on_close_box(*this, panes());
}

void start_new_round()
{
    const bool any_course = round_record::open_courses();
    if (!any_course)
        show_no_course();
    round_record::close_courses();
    if (!any_course)
        return;
    round_record::open_games_and_field_info();
    prepare_round_window();
}

void prepare_round_window()
{
    shot_rows shots;
    round_record::add_rows_without_key();
    f_new_round window(shots);
    window.fill_courses(round_record::course_lines());
    // Selecting the first course moves the recordsets of the courses to it.
    window.select_course(0);
    window.show_modal();
}

void open_stored_round(const QString& key)
{
    round_record::open_rows(key);
    shot_rows shots;
    shots.open_hole(key, first_hole);
    f_new_round window(shots);
    if (load_stored_round(window, key)) {
        load_round_header(window);
        // The key of a stored round never changes.
        window.lock_date();
    }
    window.show_modal();
}

void load_round_header(f_new_round& window)
{
    window.show_header(round_record::read_header(window.date_value()));
}

}  // namespace verdane
