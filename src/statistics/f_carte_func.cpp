#include "statistics/f_carte_func.h"

#include <QListWidget>

#include "controls/main_frame.h"
#include "records/course_rows.h"
#include "records/round_columns.h"
#include "scoring/Verdane_tools.h"
#include "statistics/f_carte.h"
#include "store/DataEnvironment1.h"

namespace verdane::f_carte_func {

namespace {

constexpr std::int16_t width_of_name = 50;
constexpr int holes_of_a_row = 9;
/// The fourteenth club, the putter, has no distance to print.
constexpr int clubs_on_card = 13;

// First ordinals of the column groups of `r_card`.
constexpr int card_yards = 1;
constexpr int card_hole = 10;
constexpr int card_hcp = 19;
constexpr int card_par = 28;
constexpr int card_club = 42;

Recordset& courses()
{
    return data_environment().rsvrd_fields;
}

Recordset& holes()
{
    return data_environment().rsfield_info;
}

Recordset& card()
{
    return data_environment().rsr_card;
}

QString list_line()
{
    QString name = courses().Fields(u"name").trimmed();
    const QString code = courses().Fields(u"code").trimmed();
    return Verdane_tools::pad_right(name, width_of_name) + u", " + Verdane_tools::tee_name(code.right(1));
}

/// Writes the nine holes after `holes_before` to the current row of the card.
void write_holes(int holes_before)
{
    for (int i = 0; i < holes_of_a_row; ++i) {
        const int hole = holes_before + i + 1;
        card().Fields(card_yards + i).set(holes().Fields(round_columns::yards_h(hole)).value());
        card().Fields(card_hole + i).set(hole);
        card().Fields(card_hcp + i).set(holes().Fields(round_columns::hcp_h(hole)).value());
        card().Fields(card_par + i).set(holes().Fields(round_columns::par_h(hole)).value());
    }
}

void write_course()
{
    card().Fields(u"card_name").set(courses().Fields(u"name").value());
    card().Fields(u"card_slope").set(courses().Fields(u"slope").value());
    card().Fields(u"card_tee").set(courses().Fields(u"tee").value());
    card().Fields(u"card_rating").set(courses().Fields(u"rating").value());
}

void write_rows_of_holes()
{
    card().MoveFirst();
    write_holes(0);
    write_course();
    card().Update();
    card().MoveNext();
    write_holes(holes_of_a_row);
    write_course();
}

void write_clubs()
{
    Recordset& averages = data_environment().rssticks;
    for (int club = 0; club < clubs_on_card; ++club)
        card().Fields(card_club + club).set(averages.Fields(club).value());
}

/// The program uses the last row of `sticks`. The current row of the card is its second one.
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

void load(f_carte& window)
{
    current_form = &window;
    Place_and_lock(window);
    holes().Open();
    courses().Open();
    if (courses().eof())
        return;
    for (courses().MoveFirst(); !courses().eof(); courses().MoveNext())
        window.List1->addItem(list_line());
    window.List1->setCurrentRow(0);
}

void print(f_carte& window)
{
    if (window.List1->currentRow() < 0)
        return;
    Round_functions::move_to_course(window.List1->currentRow());
    Round_functions::find_holes_of_course(search_direction::backward);
    card().Open();
    write_rows_of_holes();
    write_clubs_of_both_rows();
    commit_and_close();
    prepare_report(window.cr2, report_opening::maximised(), u"\\r_card2.rpt", u"\\r_card2_en.rpt");
    window.cr2.Action(report_control::run_now);
}

void cancel(f_carte& window)
{
    Unlock_menu();
    window.unload();
}

void unload()
{
    courses().Close();
    holes().Close();
    Unlock_menu();
}

}  // namespace verdane::f_carte_func
