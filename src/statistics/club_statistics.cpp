#include "statistics/club_statistics.h"

#include "base/language.h"
#include "controls/boxes.h"
#include "reports/report_control.h"
#include "statistics/club_shots.h"
#include "statistics/club_table.h"
#include "store/commits.h"
#include "store/DataEnvironment1.h"
#include "store/tables/golf_bag.h"

namespace verdane::Statistics {

namespace {

void put_shot_counts(const bag_sums& clubs)
{
    Recordset& sticks = data_environment().rssticks;
    for (int club = 1; club <= club_count; ++club)
        sticks.Fields(tables::sticks::shots(club)).set(clubs[club].clean_shots);
}

void write_table(const selection_arguments& chosen, const gathered_shots& gathered, bool store_counts,
                 run_progress& bar)
{
    relaxed_commits scratch(data_environment().connection);
    bar.move_to(30);
    club_table::open();
    club_table::write_heading(chosen);
    club_table::write_names();
    bar.move_to(70);
    club_table::write_figures(gathered.clubs);
    if (store_counts)
        put_shot_counts(gathered.clubs);
    club_table::write_round_count_and_close(gathered.rounds);
    scratch.finish();
    bar.move_to(100);
}

}  // namespace

bool fill_stat_sticks(const selection_arguments& chosen, bool store_counts, run_progress& bar)
{
    const gathered_shots gathered = gather_club_shots(chosen);
    write_table(chosen, gathered, store_counts, bar);
    bar.hide();
    if (!gathered.any_shot)
        show_information(
            in_language(u"Verdane n'a trouvé aucune ronde avec les conditions choisies. Verdane affichera "
                        u"seulement les statistiques sommaires.",
                        u"Verdane could not find any rounds with the chosen parameters. Verdane will "
                        u"display summary statistics only."));
    return gathered.any_shot;
}

void club_statistics(const selection_arguments& chosen, const club_run& run)
{
    if (!run.controls) {
        run_progress no_bar;
        fill_stat_sticks(chosen, run.store_counts, no_bar);
        return;
    }
    run_progress bar(run.controls->Status);
    bar.show(0);
    report_control& cr1 = run.controls->report;
    prepare_report(cr1, report_opening::maximised(), u"\\r_statSticks.rpt", u"\\r_statSticks_en.rpt");
    if (fill_stat_sticks(chosen, run.store_counts, bar))
        cr1.Action(report_control::run_now);
}

}  // namespace verdane::Statistics
