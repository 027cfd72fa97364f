#include "statistics/f_carte_func.h"

#include "controls/Form.h"
#include "controls/main_frame.h"
#include "records/course_rows.h"
#include "statistics/f_carte.h"
#include "store/DataEnvironment1.h"
#include "store/tables/courses.h"
#include "store/tables/golf_bag.h"
#include "store/tables/r_card.h"

namespace verdane::f_carte_func {

namespace {

/// Characters of the name in a line of the list.
constexpr int width_of_name = 50;

using namespace tables::r_card;

Recordset& card()
{
    return data_environment().rsr_card;
}

/// Writes the nine holes after `holes_before` to the current row.
void write_holes(int holes_before)
{
    Recordset& holes = data_environment().rsfield_info;
    for (int place = 1; place <= nine_holes; ++place) {
        const int hole = holes_before + place;
        card().Fields(card_yards(place)).set(holes.Fields(tables::field_info::yards_h(hole)).value());
        card().Fields(card_hole(place)).set(hole);
        card().Fields(card_hcp(place)).set(holes.Fields(tables::field_info::hcp_h(hole)).value());
        card().Fields(card_par(place)).set(holes.Fields(tables::field_info::par_h(hole)).value());
    }
}

void write_course()
{
    Recordset& courses = data_environment().rsvrd_fields;
    card().Fields(card_name).set(courses.Fields(tables::vrd_fields::name).value());
    card().Fields(card_slope).set(courses.Fields(tables::vrd_fields::slope).value());
    card().Fields(card_tee).set(courses.Fields(tables::vrd_fields::tee).value());
    card().Fields(card_rating).set(courses.Fields(tables::vrd_fields::rating).value());
}

void write_rows_of_holes()
{
    card().MoveFirst();
    write_holes(0);
    write_course();
    card().Update();
    card().MoveNext();
    write_holes(nine_holes);
    write_course();
}

/// Writes the averages to the current row.
void write_clubs()
{
    Recordset& averages = data_environment().rssticks;
    for (int club = 1; club <= clubs_on_card; ++club)
        card().Fields(card_club(club)).set(averages.Fields(tables::sticks::avg(club)).value());
}

/// The second row is the current one.
void write_clubs_of_both_rows()
{
    Recordset& averages = data_environment().rssticks;
    averages.Open();
    averages.MoveLast();
    write_clubs();
    card().Update();
    card().MovePrevious();
    write_clubs();
}

void commit_and_close()
{
    card().MoveFirst();
    card().MoveLast();
    card().Update();
    card().UpdateBatch();
    card().Requery();
    data_environment().rssticks.Close();
    card().Close();
}

/// Writes both rows for the course on the current rows of `rsvrd_fields` and `rsfield_info`, with the
/// averages of the clubs from the last row of `sticks`, and commits them. `rsr_card` and `rssticks` must be
/// closed and are closed again. Fails with `misuse` if `rsfield_info` has no current row.
void write_current_course()
{
    card().Open();
    write_rows_of_holes();
    write_clubs_of_both_rows();
    commit_and_close();
}

}  // namespace

void load(f_carte& window)
{
    current_form = &window;
    Place_and_lock(window);
    Round_functions::open_courses();
    window.show_courses(Round_functions::course_list_lines(width_of_name));
}

void print(f_carte& window)
{
    if (window.selected_course() < 0)
        return;
    Round_functions::move_to_course(window.selected_course());
    Round_functions::find_holes_of_course(search_direction::backward);
    write_current_course();
    prepare_report(window.cr2(), report_opening::maximised(), u"\\r_card2.rpt", u"\\r_card2_en.rpt");
    window.cr2().Action(report_control::run_now);
}

void cancel(f_carte& window)
{
    Unlock_menu();
    window.unload();
}

void unload()
{
    Round_functions::close_courses();
    Unlock_menu();
}

}  // namespace verdane::f_carte_func
