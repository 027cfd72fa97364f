#include "reference/f_sticks_func.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

#include <cmath>

#include "base/numbers.h"
#include "base/text.h"
#include "controls/boxes.h"
#include "controls/list_box.h"
#include "controls/main_frame.h"
#include "controls/screen_limits.h"
#include "records/Main_module.h"
#include "records/round_list.h"
#include "records/round_rows.h"
#include "reference/f_sticks.h"
#include "scoring/limits.h"
#include "scoring/round_key.h"
#include "statistics/club_statistics.h"
#include "statistics/selection.h"
#include "statistics/selection_filters.h"
#include "store/DataEnvironment1.h"
#include "store/tables/games.h"
#include "store/tables/golf_bag.h"
#include "store/tables/stat_sticks.h"

namespace verdane::f_sticks_func {

using namespace Qt::StringLiterals;

namespace {

constexpr int top_with_filters = 5;

QString title()
{
    return u"VERDANE"_s;
}

void open_bag()
{
    DataEnvironment1& store = data_environment();
    store.rssticks.Open();
    store.rssticks.MoveLast();
    store.rssticknames.Open();
    store.rssticknames.MoveFirst();
}

void close_bag()
{
    data_environment().rssticks.Close();
    data_environment().rssticknames.Close();
}

void show_bag(f_sticks& window)
{
    for (int i = 0; i < club_count; ++i) {
        window.sn(i).setText(Main_module::club_names[i]);
        // Shows a long name from its beginning.
        window.sn(i).setCursorPosition(0);
        window.Text1(i).setText(
            number_text(data_environment().rssticks.Fields(tables::sticks::avg(i + 1)).double_or_zero()));
    }
    window.head->setText(
        window.caption(u"Les moyennes des bâtons affichés ci dessous seront utilisées pour les suggestions "
                       u"donner par votre ordinateur de poche et votre carte de pointage Verdane",
                       u"The club averages shown below will be used by your Palm when making suggestions on "
                       u"your handheld computer and on your Verdane score card"));
}

/// The lines of the stored rounds, with the course in capitals.
QStringList round_lines()
{
    Recordset& games = data_environment().rsgames;
    QStringList lines;
    for (; !games.eof(); games.MoveNext())
        lines << Verdane_tools::round_entry(games.Fields(tables::games::date).text_or_empty(),
                                            in_capitals(games.Fields(tables::games::field).text_or_empty()),
                                            Round_functions::round_incomplete());
    return lines;
}

/// False when the store holds no round.
bool fill_rounds(f_sticks& window)
{
    DataEnvironment1& store = data_environment();
    Round_functions::open_rounds_in_time_order();
    store.rsfield_info.Open();
    const QStringList lines = round_lines();
    for (QListWidget* list : {window.List1, window.List2})
        fill_list_box(*list, lines);
    store.rsgames.Close();
    store.rsfield_info.Close();
    return !lines.isEmpty();
}

void stop_without_rounds(f_sticks& window)
{
    tell(window.caption(u"Attention : Verdane n'a trouvé aucune ronde enregistrée",
                        u"Attention : Verdane did not find any round"),
         QMessageBox::Information, title());
    close_bag();
    window.unload();
}

void fill_filters(f_sticks& window)
{
    fill_partner_filter(*window.pList, window.french());
    fill_course_filter(*window.cmb_courses, window.french(), tee_letters::capitals);
    for (QComboBox* filter : {window.pList, window.cmb_courses})
        filter->setCurrentIndex(0);
}

void show_averages(f_sticks& window)
{
    Recordset& report = data_environment().rsstat_sticks;
    report.Open();
    report.MoveFirst();
    // The putter has no distance and is not changed.
    for (int i = 0; i < club_count - 1; ++i) {
        window.Text1(i).setText(report.Fields(tables::stat_sticks::average).text_or_empty());
        report.MoveNext();
    }
    report.Close();
}

/// An infinite figure could be stored but not displayed again.
double typed_average(const QLineEdit& box)
{
    const double average = leading_number(box.text());
    if (!std::isfinite(average))
        throw run_time_failure(failure_kind::overflow, QString(u"an average of " + box.text()));
    return average;
}

void take_boxes_over(const f_sticks& window)
{
    for (int i = 0; i < club_count; ++i) {
        data_environment().rssticks.Fields(tables::sticks::avg(i + 1)).set(typed_average(window.Text1(i)));
        data_environment().rssticknames.Fields(tables::sticknames::club(i + 1)).set(window.sn(i).text());
        Main_module::club_names[i] = window.sn(i).text();
    }
}

void drop_changes()
{
    data_environment().rssticks.CancelUpdate();
    data_environment().rssticknames.CancelUpdate();
}

void close_window(f_sticks& window)
{
    close_bag();
    Unlock_menu();
    window.unload();
}

}  // namespace

void load(f_sticks& window)
{
    current_form = &window;
    Place_and_lock(window);
    open_bag();
    show_bag(window);
    fill_weather_filter(*window.conditions, window.french());
    if (!fill_rounds(window)) {
        stop_without_rounds(window);
        return;
    }
    fill_filters(window);
    window.widen_to(bag_width);
}

void show_filters(f_sticks& window)
{
    window.Frame1->show();
    window.widen_to(width_with_filters);
    if (main_frame())
        window.move(window.x(), main_frame()->frame_widget()->geometry().top() + pixels(top_with_filters));
    keep_on_screen(window);
}

selection_arguments selection_of(const f_sticks& window)
{
    selection_arguments chosen;
    chosen.from_key = chosen_round_key(*window.List1);
    chosen.to_key = chosen_round_key(*window.List2);
    chosen.weather_clause =
        clause_of(filter::weather, clause_form::appended, chosen_weather(*window.conditions));
    chosen.weather_text = window.conditions->currentText();
    chosen.partner_clause = clause_of(filter::partner, clause_form::appended, chosen_partner(*window.pList));
    chosen.partner_text = is_on(*window.pList) ? window.pList->currentText()
                                               : window.caption(u"TOUS LES PARTENAIRES", u"All partners");
    const QString course = chosen_course(*window.cmb_courses);
    chosen.course_clause =
        course.isEmpty() ? QString() : clause_of(filter::course, clause_form::appended, course);
    chosen.course_text = is_on(*window.cmb_courses) ? window.cmb_courses->currentText()
                                                    : window.caption(u"TOUS LES TERRAINS", u"All COURSES");
    return chosen;
}

void compute_averages(f_sticks& window)
{
    const selection_arguments chosen = selection_of(window);
    // The statistic opens the names itself.
    data_environment().rssticknames.Close();
    Statistics::club_run silent;
    silent.store_counts = true;
    Statistics::club_statistics(chosen, silent);
    data_environment().rssticknames.Open();
    show_averages(window);
}

void accept(f_sticks& window)
{
    take_boxes_over(window);
    Main_module::club_names_kept = ask_yes_no(
        window.caption(u"Désirez vous conservés ces moyennes ?", u"Do you want to keep these averages ?"),
        title());
    if (Main_module::club_names_kept) {
        data_environment().rssticks.Update();
        data_environment().rssticknames.Update();
    } else {
        drop_changes();
    }
    close_window(window);
}

void cancel(f_sticks& window)
{
    if (!window.is_loaded())
        return;
    drop_changes();
    close_window(window);
}

}  // namespace verdane::f_sticks_func
