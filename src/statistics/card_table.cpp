#include "statistics/card_table.h"

#include "store/DataEnvironment1.h"
#include "store/tables/courses.h"
#include "store/tables/golf_bag.h"
#include "store/tables/r_card.h"

namespace verdane::card_table {

namespace {

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

}  // namespace

void write_current_course()
{
    card().Open();
    write_rows_of_holes();
    write_clubs_of_both_rows();
    commit_and_close();
}

}  // namespace verdane::card_table
