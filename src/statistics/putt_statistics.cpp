#include "statistics/putt_statistics.h"

#include "base/language.h"
#include "controls/boxes.h"
#include "records/round_columns.h"
#include "reports/report_control.h"
#include "scoring/round_key.h"
#include "statistics/putt_tables.h"
#include "store/DataEnvironment1.h"
#include "store/relaxed_commits.h"

namespace verdane::Statistics {

using namespace Qt::StringLiterals;

namespace {

void prepare_putt_report(report_control& control)
{
    prepare_report(control, report_opening::zoomed(75), u"\\statPuts.rpt", u"\\statPuts_en.rpt");
}

/// The lengths are adjacent columns; the column after the last one is read as a length, too.
putt_counts putts_of_current_round()
{
    Recordset& games2 = data_environment().rsgames2;
    return scan_round_putts(
        [&games2](int place) { return games2.Fields(round_columns::putt_len(1, 1) + place).to_int16(); });
}

putt_figures figures_of(const putt_counts& counts, run_progress& bar)
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

/// False when no round of the result is in the range.
bool find_first_round(const selection_arguments& chosen)
{
    Recordset& games2 = data_environment().rsgames2;
    if (chosen.from_key > chosen.to_key || games2.eof())
        return false;
    games2.MoveFirst();
    games2.Find(u"Date >=" + quoted(chosen.from_key));
    return !games2.eof();
}

struct walked_rounds {
    putt_counts counts;
    int16 rounds = 0;
};

/// Starts at the current row. The key of the last round is the only upper limit.
walked_rounds walk_rounds(const QString& to_key, run_progress& bar)
{
    Recordset& games2 = data_environment().rsgames2;
    walked_rounds walked;
    bool more = true;
    while (!games2.eof() && more) {
        walked.rounds = walked.rounds + static_cast<std::int16_t>(1);
        more = games2.Fields(round_columns::date).trimmed() != to_key;
        const putt_counts round = putts_of_current_round();
        bar.pass_through(10);
        walked.counts.add(round);
        bar.pass_through(20);
        games2.MoveNext();
    }
    return walked;
}

/// Written once for all rounds together: no report can see the intermediate state of the
/// grids.
void write_tables(const selection_arguments& chosen, const walked_rounds& walked, run_progress& bar)
{
    bar.move_to(30);
    const putt_figures figures = figures_of(walked.counts, bar);
    bar.move_to(90);
    const relaxed_commits scratch(data_environment().connection);
    putt_tables::open();
    putt_tables::write_captions();
    putt_tables::write_range(Verdane_tools::key_text(chosen.from_key),
                             Verdane_tools::key_text(chosen.to_key));
    putt_tables::write_choices(chosen.weather_text, chosen.partner_text, chosen.course_text);
    putt_tables::write_grids(figures);
    putt_tables::write_rating_on_last_row(figures.rating());
    putt_tables::write_round_count(walked.rounds);
    putt_tables::commit_and_close();
    bar.move_to(100);
}

/// True when a putt was found.
bool fill_from_rounds(const selection_arguments& chosen, run_progress& bar)
{
    if (!find_first_round(chosen))
        return false;
    const walked_rounds walked = walk_rounds(chosen.to_key, bar);
    write_tables(chosen, walked, bar);
    return walked.counts.any_putt;
}

}  // namespace

QString putt_select(const selection_arguments& chosen)
{
    return u"select * from games2 where " + chosen.weather_clause + u" AND " + chosen.partner_clause +
           u" AND " + chosen.course_clause + u" order by date ";
}

bool fill_putt_tables(const selection_arguments& chosen, run_progress& bar)
{
    Recordset& games2 = data_environment().rsgames2;
    games2.set_Source(putt_select(chosen));
    games2.Open();
    const bool any_putt = fill_from_rounds(chosen, bar);
    games2.Close();
    games2.set_Source(u"select * from games2"_s);
    bar.hide();
    if (!any_putt)
        tell(in_language(u"Verdane n'a trouvé aucune ronde détaillée avec les conditions choisies",
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
    const relaxed_commits scratch(data_environment().connection);
    run_progress no_bar;
    const putt_figures figures = figures_of(putts_of_current_round(), no_bar);
    putt_tables::open();
    putt_tables::write_grids(figures);
    putt_tables::write_captions();
    putt_tables::write_rating_on_first_row(figures.rating());
    putt_tables::write_range(caption_1, caption_2);
    putt_tables::commit_and_close();
    return figures.counts.any_putt;
}

void one_round_putt_report(report_control& cr2, const QString& caption_1, const QString& caption_2)
{
    prepare_putt_report(cr2);
    round_putts(caption_1, caption_2);
    cr2.Action(report_control::run_now);
}

}  // namespace verdane::Statistics
