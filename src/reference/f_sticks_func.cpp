#include "reference/f_sticks_func.h"

#include <cmath>

#include "base/numbers.h"
#include "controls/boxes.h"
#include "controls/Form.h"
#include "controls/look.h"
#include "controls/main_frame.h"
#include "controls/screen_limits.h"
#include "records/Main_module.h"
#include "records/round_list.h"
#include "records/round_rows.h"
#include "reference/f_sticks.h"
#include "scoring/limits.h"
#include "statistics/club_statistics.h"
#include "statistics/selection.h"
#include "statistics/selection_filters.h"
#include "store/DataEnvironment1.h"
#include "store/tables/golf_bag.h"
#include "store/tables/stat_sticks.h"

namespace verdane::f_sticks_func {

using namespace Qt::StringLiterals;

namespace {

constexpr int width_with_filters = 10605;
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
    for (int club = 0; club < club_count; ++club) {
        window.set_name(club, Main_module::club_names[club]);
        window.set_average(
            club,
            number_text(data_environment().rssticks.Fields(tables::sticks::avg(club + 1)).double_or_zero()));
    }
    window.set_explanation(
        window.caption(u"Les moyennes des bâtons affichés ci dessous seront utilisées pour les suggestions "
                       u"donner par votre ordinateur de poche et votre carte de pointage Verdane",
                       u"The club averages shown below will be used by your Palm when making suggestions on "
                       u"your handheld computer and on your Verdane score card"));
}

void stop_without_rounds(f_sticks& window)
{
    show_information(window.caption(u"Attention : Verdane n'a trouvé aucune ronde enregistrée",
                                    u"Attention : Verdane did not find any round"),
                     QMessageBox::Information, title());
    close_bag();
    window.unload();
}

void show_averages(f_sticks& window)
{
    Recordset& report = data_environment().rsstat_sticks;
    report.Open();
    report.MoveFirst();
    // The putter, the last club, has no distance and is not changed.
    for (int club = 0; club < club_count - 1; ++club) {
        window.set_average(club, report.Fields(tables::stat_sticks::average).text_or_empty());
        report.MoveNext();
    }
    report.Close();
}

/// An infinite figure could be stored but not displayed again.
double typed_average(const QString& typed)
{
    const double average = leading_number(typed);
    if (!std::isfinite(average))
        throw run_time_failure(failure_kind::overflow, QString(u"an average of " + typed));
    return average;
}

void copy_boxes_to_rows(const f_sticks& window)
{
    for (int club = 0; club < club_count; ++club) {
        data_environment()
            .rssticks.Fields(tables::sticks::avg(club + 1))
            .set(typed_average(window.average(club)));
        data_environment().rssticknames.Fields(tables::sticknames::club(club + 1)).set(window.name(club));
        Main_module::club_names[club] = window.name(club);
    }
}

void discard_changes()
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
    if (!window.fill_filters()) {
        stop_without_rounds(window);
        return;
    }
    window.widen_to(bag_width);
}

void show_filters(f_sticks& window)
{
    window.show_filters();
    window.widen_to(width_with_filters);
    if (main_frame())
        window.move(window.x(), main_frame()->frame_widget()->geometry().top() + pixels(top_with_filters));
    keep_on_screen(window);
}

void compute_averages(f_sticks& window)
{
    const selection_arguments chosen = window.selection();
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
    copy_boxes_to_rows(window);
    Main_module::club_names_kept = ask_yes_no(
        window.caption(u"Désirez vous conservés ces moyennes ?", u"Do you want to keep these averages ?"),
        title());
    if (Main_module::club_names_kept) {
        data_environment().rssticks.Update();
        data_environment().rssticknames.Update();
    } else {
        discard_changes();
    }
    close_window(window);
}

void cancel(f_sticks& window)
{
    if (!window.is_loaded())
        return;
    discard_changes();
    close_window(window);
}

}  // namespace verdane::f_sticks_func
