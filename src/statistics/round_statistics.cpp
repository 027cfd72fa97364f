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

/// Determines whether the selection has shots. The summary pass overwrites the figures of this pass.
void run_detail_pass(const selection_arguments& chosen, run_progress& bar)
{
    const std::vector<detailed_hole> holes = gather_detail(chosen);
    if (holes.empty())
        show_information(
            in_language(u"Verdane n'a trouvé aucune ronde détaillée avec les conditions choisies. Faite OK "
                        u"pour vérifier si des statistiques sommaires existent.",
                        u"Verdane could not find any detailed rounds with the chosen parameters. Click on "
                        u"OK to calculate summary statistics."));
    bar.show(20);
    write_detail(holes);
    bar.move_to(40);
    if (!holes.empty())
        data_environment().rsstats.Update();
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
    show_information(
        in_language(u"Verdane ne peut pas afficher les statistiques sommaires avec les conditions choisies.",
                    u"Verdane could not find summary statistics with the chosen parameters."));
    close_stats();
}

void stop_at_missing_row(missing_row row, run_progress& bar)
{
    bar.hide();
    close_stats();
    report_missing_row(row);
}

/// Adds heading, totals and handicap to the lines of the summary pass and closes the table. False if a round
/// lacks a row.
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

/// Rebuilds the table; no value if there is nothing to print.
std::optional<season_rounds> fill_stats_table(const selection_arguments& chosen, run_progress& bar)
{
    stats_table::open_cleared();
    run_detail_pass(chosen, bar);
    filled_lines filled = fill_round_lines(chosen);
    if (filled.missing != missing_row::none) {
        stop_at_missing_row(filled.missing, bar);
        return {};
    }
    if (filled.rounds < 1) {
        stop_without_rounds(bar);
        return {};
    }
    if (!finish_table(chosen, filled.rounds, bar))
        return {};
    return std::move(filled.season);
}

}  // namespace

std::optional<season_rounds> rounds_in_stats(const selection_arguments& chosen, run_progress& bar)
{
    // Each run rebuilds the table with hundreds of commits.
    relaxed_commits scratch(data_environment().connection);
    std::optional<season_rounds> rounds = fill_stats_table(chosen, bar);
    scratch.finish();
    return rounds;
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
