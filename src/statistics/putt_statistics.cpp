#include "statistics/putt_statistics.h"

#include "base/language.h"
#include "controls/boxes.h"
#include "reports/report_control.h"
#include "scoring/putt_figures.h"
#include "scoring/round_key.h"
#include "statistics/putt_lengths.h"
#include "statistics/putt_tables.h"
#include "store/commits.h"
#include "store/DataEnvironment1.h"

namespace verdane::Statistics {

using namespace Qt::StringLiterals;

namespace {

void prepare_putt_report(report_control& control)
{
    prepare_report(control, report_opening::zoomed(75), u"\\statPuts.rpt", u"\\statPuts_en.rpt");
}

/// Computes the figures, moving the bar.
putt_figures compute_figures(const putt_counts& counts, run_progress& bar)
{
    putt_figures figures;
    figures.counts = counts;
    const putt_totals totals = totals_of(counts);
    bar.move_to(40);
    figures.means = means_of(counts, totals);
    bar.move_to(60);
    figures.graded = graded_putts(counts);
    bar.move_to(70);
    figures.putts = putt_count(counts);
    bar.move_to(80);
    return figures;
}

/// Writes the grids once, for all rounds together.
void write_tables(const selection_arguments& chosen, const gathered_putts& gathered, run_progress& bar)
{
    bar.move_to(30);
    const putt_figures figures = compute_figures(gathered.counts, bar);
    bar.move_to(90);
    relaxed_commits scratch(data_environment().connection);
    putt_tables::open();
    putt_tables::write_captions();
    putt_tables::write_range(Verdane_tools::key_text(chosen.from_key),
                             Verdane_tools::key_text(chosen.to_key));
    putt_tables::write_choices(chosen.weather_text, chosen.partner_text, chosen.course_text);
    putt_tables::write_grids(figures);
    putt_tables::write_rating_on_last_row(figures.rating());
    putt_tables::write_round_count(gathered.rounds);
    putt_tables::commit_and_close();
    scratch.finish();
    bar.move_to(100);
}

}  // namespace

bool fill_putt_tables(const selection_arguments& chosen, run_progress& bar)
{
    const std::optional<gathered_putts> gathered = gather_putts(chosen, bar);
    if (gathered)
        write_tables(chosen, *gathered, bar);
    bar.hide();
    const bool any_putt = gathered && gathered->counts.any_putt;
    if (!any_putt)
        show_information(
            in_language(u"Verdane n'a trouvé aucune ronde détaillée avec les conditions choisies",
                        u"Verdane could not find any detailed rounds with the chosen parameters."));
    return any_putt;
}

void putt_statistics(const selection_arguments& chosen, const run_controls& controls)
{
    run_progress bar(controls.Status);
    bar.show(5);
    prepare_putt_report(controls.report);
    if (fill_putt_tables(chosen, bar))
        controls.report.Action(report_control::run_now);
}

bool round_putts(const QString& caption_1, const QString& caption_2)
{
    relaxed_commits scratch(data_environment().connection);
    run_progress no_bar;
    const putt_figures figures = compute_figures(putts_of_current_round(), no_bar);
    putt_tables::open();
    putt_tables::write_grids(figures);
    putt_tables::write_captions();
    putt_tables::write_rating_on_first_row(figures.rating());
    putt_tables::write_range(caption_1, caption_2);
    putt_tables::commit_and_close();
    scratch.finish();
    return figures.counts.any_putt;
}

void one_round_putt_report(report_control& cr2, const QString& caption_1, const QString& caption_2)
{
    prepare_putt_report(cr2);
    round_putts(caption_1, caption_2);
    cr2.Action(report_control::run_now);
}

}  // namespace verdane::Statistics
