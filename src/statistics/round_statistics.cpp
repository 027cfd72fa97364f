#include "statistics/round_statistics.h"

#include "base/language.h"
#include "controls/boxes.h"
#include "records/round_rows.h"
#include "reports/report_control.h"
#include "scoring/round_sums.h"
#include "statistics/detail_pass.h"
#include "statistics/handicap.h"
#include "statistics/stats_table.h"
#include "store/DataEnvironment1.h"
#include "store/relaxed_commits.h"

namespace verdane::Statistics {

using namespace Qt::StringLiterals;

namespace {

namespace rows = Round_functions;

void open_round_tables(const selection_arguments& chosen)
{
    DataEnvironment1& store = data_environment();
    store.rsvrd_fields.Open();
    store.rsfield_info.Open();
    store.rsgames2.Open();
    store.rsgames.set_Source(selected_rounds_statement(chosen));
    store.rsgames.Open();
}

void close_round_tables()
{
    DataEnvironment1& store = data_environment();
    for (Recordset* table : {&store.rsgames2, &store.rsgames, &store.rsvrd_fields, &store.rsfield_info})
        table->Close();
    store.rsgames.set_Source(u"Select * from games"_s);
}

/// Reads a hole of the round from the current rows, each column once.
played_hole read_hole(int16 hole)
{
    const rows::situation situation = rows::read_situation(hole);
    return {rows::figures_from_row(hole), rows::hole_par(hole), situation.sand, situation.missed,
            situation.fairway};
}

void add_current_round(round_sums& sums)
{
    sums.add_round();
    for (int h = 1; h <= hole_count; ++h)
        sums.add_hole(h, read_hole(static_cast<std::int16_t>(h)));
}

void detail_pass(const selection_arguments& chosen, run_progress& bar)
{
    const bool detailed = open_detail(chosen);
    if (!detailed)
        tell(in_language(u"Verdane n'a trouvé aucune ronde détaillée avec les conditions choisies. Faite OK "
                         u"pour vérifier si des statistiques sommaires existent.",
                         u"Verdane could not find any detailed rounds with the chosen parameters. Click on "
                         u"OK to calculate summary statistics."));
    bar.show(20);
    if (detailed)
        stats_table::write_detail();
    bar.move_to(40);
    if (detailed)
        data_environment().rsstats.Update();
    close_detail();
    bar.move_to(30);
}

void close_stats()
{
    data_environment().rsstats.Update();
    data_environment().rsstats.Close();
}

void stop_without_rounds(run_progress& bar)
{
    bar.hide();
    tell(in_language(u"Verdane ne peut pas afficher les statistiques sommaires avec les conditions choisies.",
                     u"Verdane could not find summary statistics with the chosen parameters."));
    close_stats();
}

void stop_at_missing_row(missing_row row, run_progress& bar)
{
    bar.hide();
    close_stats();
    tell_missing_row(row);
}

/// Adds headings, totals and the handicap to the lines of the summary pass. False when a row was missing;
/// everything is closed in either case.
bool finish_table(const selection_arguments& chosen, int16 rounds, run_progress& bar)
{
    stats_table::write_heading(chosen);
    bar.move_to(50);
    stats_table::write_totals();
    bar.move_to(60);
    bar.move_to(80);
    const handicap_result handicap = compute_handicap(chosen);
    if (handicap.missing != missing_row::none) {
        stop_at_missing_row(handicap.missing, bar);
        return false;
    }
    stats_table::write_handicap(handicap.text);
    stats_table::write_round_count_and_close(rounds);
    bar.move_to(100);
    bar.hide();
    return true;
}

}  // namespace

filled_lines fill_round_lines(const selection_arguments& chosen)
{
    open_round_tables(chosen);
    round_sums sums;
    const missing_row missing = walk_selected_rounds(chosen, [&] { add_current_round(sums); });
    if (missing == missing_row::none)
        stats_table::write_round_lines(sums);
    close_round_tables();
    return {missing, sums.rounds};
}

bool fill_stats(const selection_arguments& chosen, run_progress& bar)
{
    // The table is scratch: each run rebuilds it with hundreds of commits.
    const relaxed_commits scratch(data_environment().connection);
    stats_table::open_cleared();
    detail_pass(chosen, bar);
    const filled_lines filled = fill_round_lines(chosen);
    if (filled.missing != missing_row::none) {
        stop_at_missing_row(filled.missing, bar);
        return false;
    }
    if (filled.rounds < 1) {
        stop_without_rounds(bar);
        return false;
    }
    return finish_table(chosen, filled.rounds, bar);
}

void round_statistics(const selection_arguments& chosen, const run_controls& controls)
{
    run_progress bar(controls.Status);
    if (!fill_stats(chosen, bar))
        return;
    prepare_report(controls.report, report_opening::maximised(), u"\\Stat_rounds.rpt",
                   u"\\Stat_rounds_en.rpt");
    controls.report.Action(report_control::run_now);
}

}  // namespace verdane::Statistics
