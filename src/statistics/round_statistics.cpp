#include "statistics/round_statistics.h"

#include <utility>

#include "base/language.h"
#include "controls/boxes.h"
#include "reports/report_control.h"
#include "statistics/detail_pass.h"
#include "statistics/round_handicap.h"
#include "statistics/season_tables.h"
#include "statistics/stats_table.h"
#include "statistics/summary_pass.h"
#include "store/commits.h"
#include "store/DataEnvironment1.h"

namespace verdane::Statistics {

using namespace Qt::StringLiterals;

namespace {

void report_no_detail()
{
    show_information(
        in_language(u"Verdane n'a trouvé aucune ronde détaillée avec les conditions choisies. Faite OK "
                    u"pour vérifier si des statistiques sommaires existent.",
                    u"Verdane could not find any detailed rounds with the chosen parameters. Click on "
                    u"OK to calculate summary statistics."));
}

void report_no_round()
{
    show_information(
        in_language(u"Verdane ne peut pas afficher les statistiques sommaires avec les conditions choisies.",
                    u"Verdane could not find summary statistics with the chosen parameters."));
}

void open_cleared_table()
{
    relaxed_commits scratch(data_environment().connection);
    stats_table::open_cleared();
    scratch.finish();
}

void close_stats()
{
    data_environment().rsstats.Update();
    data_environment().rsstats.Close();
}

/// The summary pass overwrites these figures.
void write_detail_pass(const std::vector<detailed_hole>& holes, run_progress& bar)
{
    bar.show(20);
    write_detail(holes);
    bar.move_to(40);
    if (!holes.empty())
        data_environment().rsstats.Update();
    bar.move_to(30);
}

/// Adds heading, totals and handicap to the lines of the summary pass and closes the table. If a round lacks
/// a row, the table is still open, and that row is returned.
missing_row finish_table(const selection_arguments& chosen, int16 rounds, run_progress& bar)
{
    stats_table::write_heading(chosen);
    bar.move_to(50);
    stats_table::write_totals();
    bar.move_to(60);
    bar.move_to(80);
    const handicap_result handicap = compute_handicap(chosen);
    if (handicap.missing != missing_row::none)
        return handicap.missing;
    stats_table::write_handicap(handicap.text);
    stats_table::write_round_count_and_close(rounds);
    bar.move_to(100);
    return missing_row::none;
}

/// Fills the table, which is open and cleared, with hundreds of commits. It is closed on return unless no
/// round was found.
filled_lines fill_table(const selection_arguments& chosen, const std::vector<detailed_hole>& holes,
                        run_progress& bar)
{
    relaxed_commits scratch(data_environment().connection);
    write_detail_pass(holes, bar);
    filled_lines filled = fill_round_lines(chosen);
    if (filled.missing == missing_row::none && filled.rounds > 0)
        filled.missing = finish_table(chosen, filled.rounds, bar);
    bar.hide();
    if (filled.missing != missing_row::none)
        close_stats();
    scratch.finish();
    return filled;
}

}  // namespace

std::optional<season_rounds> rounds_in_stats(const selection_arguments& chosen, run_progress& bar)
{
    // A message box waits for the user, so it is shown after the statements before it were committed: on a
    // server they would lock their rows meanwhile.
    open_cleared_table();
    const std::vector<detailed_hole> holes = gather_detail(chosen);
    if (holes.empty())
        report_no_detail();
    filled_lines filled = fill_table(chosen, holes, bar);
    if (filled.missing != missing_row::none) {
        report_missing_row(filled.missing);
        return {};
    }
    if (filled.rounds < 1) {
        report_no_round();
        close_stats();
        return {};
    }
    return std::move(filled.season);
}

void round_statistics(const selection_arguments& chosen, const run_controls& controls)
{
    run_progress bar(controls.Status);
    const std::optional<season_rounds> rounds = rounds_in_stats(chosen, bar);
    if (!rounds)
        return;
    prepare_report(controls.report, report_opening::maximised(), u"\\Stat_rounds.rpt",
                   u"\\Stat_rounds_en.rpt");
    controls.report.pass_rows(season_tables(*rounds));
    controls.report.Action(report_control::run_now);
}

}  // namespace verdane::Statistics
