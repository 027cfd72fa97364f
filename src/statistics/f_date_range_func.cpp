#include "f_date_range_func.h"

#include <QComboBox>
#include <QLabel>
#include <QListWidget>

#include "boxes.h"
#include "DataEnvironment1.h"
#include "f_date_range.h"
#include "list_box.h"
#include "main_frame.h"
#include "round_key.h"
#include "round_list.h"
#include "round_rows.h"
#include "selection_clauses.h"
#include "selection_lists.h"
#include "Statistics.h"

namespace verdane::f_date_range_func {

namespace {

void empty_cost_report()
{
    Recordset& report = data_environment().rsr_cost;
    report.Open();
    if (!report.bof() && !report.eof()) {
        for (report.MoveFirst(); !report.eof(); report.MoveNext())
            report.Delete();
    }
    report.UpdateBatch();
    report.Close();
}

/// False when the store holds no round.
bool fill_rounds(f_date_range& window)
{
    DataEnvironment1& store = data_environment();
    store.rsgames.Open();
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
    tell(window.caption(u"Il n'y a pas de ronde enregistrée", u"Verdane did not find any round"),
         QMessageBox::Information);
    window.unload();
}

QString selected_key(const QListWidget& list)
{
    return Verdane_tools::key_of_entry(list.currentItem()->text());
}

/// The course stands in its table at the place it has in the list.
QString chosen_course_code(const QComboBox& courses)
{
    Recordset& rows = data_environment().rsvrd_fields;
    rows.Open();
    const QString code = Round_functions::course_code_at(courses.currentIndex() - 1);
    rows.Close();
    return code;
}

bool is_on(const QComboBox& filter)
{
    return filter.currentIndex() > 0;
}

void put_weather(const f_date_range& window, selection_arguments& chosen)
{
    const bool on = is_on(*window.conditions);
    chosen.weather_value = on ? QString::number(window.conditions->currentIndex() - 1) : QString();
    chosen.weather_clause = and_weather(chosen.weather_value);
    chosen.weather_text = on ? window.conditions->currentText() : window.caption(u" TOUTES", u" ALL");
}

void put_partner(const f_date_range& window, selection_arguments& chosen)
{
    const bool on = is_on(*window.pList);
    chosen.partner_number = on ? window.pList->currentData().toString() : QString();
    chosen.partner_clause = and_partner(chosen.partner_number);
    chosen.partner_text =
        on ? window.pList->currentText() : window.caption(u"TOUS LES PARTENAIRES", u"ALL PARTNERS");
}

void put_course(const f_date_range& window, selection_arguments& chosen)
{
    const bool on = is_on(*window.cmb_courses);
    chosen.course_code = on ? chosen_course_code(*window.cmb_courses) : QString();
    chosen.course_clause = and_course(chosen.course_code);
    chosen.course_text =
        on ? window.cmb_courses->currentText() : window.caption(u"TOUS LES TERRAINS", u"ALL COURSES");
}

}  // namespace

void load(f_date_range& window)
{
    empty_cost_report();
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
    window.rounds_between = static_cast<std::int16_t>(between);
}

selection_arguments round_selection(const f_date_range& window)
{
    selection_arguments chosen;
    chosen.from_key = selected_key(*window.List1);
    chosen.to_key = selected_key(*window.List2);
    put_weather(window, chosen);
    put_partner(window, chosen);
    put_course(window, chosen);
    return chosen;
}

void run_round_statistics(f_date_range& window)
{
    Statistics::round_statistics(round_selection(window), {*window.Status, window.cr2});
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
    Unlock_menu();
}

}  // namespace verdane::f_date_range_func
