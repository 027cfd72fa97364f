#include "statistics/f_date_range_func.h"

#include <QComboBox>
#include <QLabel>
#include <QListWidget>

#include "controls/boxes.h"
#include "controls/list_box.h"
#include "controls/main_frame.h"
#include "records/round_list.h"
#include "statistics/club_statistics.h"
#include "statistics/cost_statistics.h"
#include "statistics/f_date_range.h"
#include "statistics/putt_statistics.h"
#include "statistics/round_statistics.h"
#include "statistics/selection_filters.h"
#include "store/DataEnvironment1.h"

namespace verdane::f_date_range_func {

using namespace Qt::StringLiterals;

namespace {

/// False if the store has no round.
bool fill_rounds(f_date_range& window)
{
    DataEnvironment1& store = data_environment();
    Round_functions::open_rounds_in_time_order();
    store.rsfield_info.Open();
    const QStringList lines = Round_functions::round_list_lines();
    for (QListWidget* list : {window.List1, window.List2})
        fill_list_box(*list, lines);
    window.Label1(f_date_range::count_label).setText(QString::number(lines.size()));
    store.rsgames.Close();
    store.rsfield_info.Close();
    return !lines.isEmpty();
}

void stop_without_rounds(f_date_range& window)
{
    show_information(window.caption(u"Il n'y a pas de ronde enregistrée", u"Verdane did not find any round"),
                     QMessageBox::Information);
    window.unload();
}

/// The text of the weather in the heading of a report if the filter is off: the entry of the list in the club
/// and putt reports, " ALL" in the round and cost reports.
QString open_weather(const f_date_range& window)
{
    const statistics_mode mode = window.mode();
    const bool shows_entry = mode == statistics_mode::club || mode == statistics_mode::putt;
    return shows_entry ? window.conditions->currentText() : window.caption(u" TOUTES", u" ALL");
}

clause_form form_of(const f_date_range& window)
{
    return window.mode() == statistics_mode::putt ? clause_form::alone : clause_form::appended;
}

void put_weather(const f_date_range& window, selection_arguments& chosen)
{
    chosen.weather_value = chosen_weather(*window.conditions);
    chosen.weather_clause = clause_of(filter::weather, form_of(window), chosen.weather_value);
    chosen.weather_text = is_on(*window.conditions) ? window.conditions->currentText() : open_weather(window);
}

void put_partner(const f_date_range& window, selection_arguments& chosen)
{
    chosen.partner_number = chosen_partner(*window.pList);
    chosen.partner_clause = clause_of(filter::partner, form_of(window), chosen.partner_number);
    chosen.partner_text = is_on(*window.pList) ? window.pList->currentText()
                                               : window.caption(u"TOUS LES PARTENAIRES", u"ALL PARTNERS");
}

void put_course(const f_date_range& window, selection_arguments& chosen)
{
    chosen.course_code = chosen_course(*window.cmb_courses);
    chosen.course_clause = clause_of(filter::course, form_of(window), chosen.course_code);
    chosen.course_text = is_on(*window.cmb_courses) ? window.cmb_courses->currentText()
                                                    : window.caption(u"TOUS LES TERRAINS", u"ALL COURSES");
}

}  // namespace

void load(f_date_range& window)
{
    Statistics::empty_cost_report();
    current_form = &window;
    Place_and_lock(window);
    fill_partner_filter(*window.pList, window.french());
    fill_course_filter(*window.cmb_courses, window.french());
    window.pList->setCurrentIndex(0);
    window.cmb_courses->setCurrentIndex(0);
    fill_weather_filter(*window.conditions, window.french());
    if (!fill_rounds(window))
        stop_without_rounds(window);
}

void count_rounds_between(f_date_range& window)
{
    const int between = window.List2->currentRow() - window.List1->currentRow() + 1;
    window.rounds_between = between;
}

selection_arguments selection_of(const f_date_range& window)
{
    selection_arguments chosen;
    chosen.from_key = chosen_round_key(*window.List1);
    chosen.to_key = chosen_round_key(*window.List2);
    put_weather(window, chosen);
    put_partner(window, chosen);
    put_course(window, chosen);
    return chosen;
}

void run_club_statistics(f_date_range& window)
{
    const run_controls controls{*window.Status, window.cr1};
    Statistics::club_statistics(selection_of(window), {&controls});
}

void run_round_statistics(f_date_range& window)
{
    Statistics::round_statistics(selection_of(window), {*window.Status, window.cr2});
}

void run_cost_statistics(f_date_range& window)
{
    Statistics::cost_statistics(selection_of(window), {*window.Status, window.cr2});
}

void run_putt_statistics(f_date_range& window)
{
    Statistics::putt_statistics(selection_of(window), {*window.Status, window.cr3});
}

void cancel(f_date_range& window)
{
    Unlock_menu();
    close_form(window);
}

void close_form(f_date_range& window)
{
    window.unload();
    Unlock_menu();
}

void unload()
{
    // Cost statistics without a result leave a statement in force whose rows are read-only.
    data_environment().rscost.set_Source(u"select * from cost"_s);
    Unlock_menu();
}

}  // namespace verdane::f_date_range_func
