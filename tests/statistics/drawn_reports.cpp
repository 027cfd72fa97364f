#include "tests/statistics/drawn_reports.h"

#include <QProgressBar>

#include "base/program.h"
#include "reports/preview/report_preview.h"
#include "reports/query/report_snapshot.h"
#include "reports/report_document.h"
#include "statistics/club_statistics.h"
#include "statistics/cost_statistics.h"
#include "statistics/f_carte.h"
#include "statistics/f_carte_func.h"
#include "statistics/putt_statistics.h"
#include "statistics/round_statistics.h"
#include "statistics/season_tables.h"
#include "statistics/selection.h"
#include "store/DataEnvironment1.h"
#include "tests/reports/report_tools.h"
#include "tests/support/full_diary.h"
#include "tests/support/recording_frame.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

constexpr int dots_per_inch = 100;

template <typename Statistic>
void run(const round_range& range, Statistic statistic, clause_form form = clause_form::appended)
{
    selection_arguments chosen;
    chosen.from_key = range.from;
    chosen.to_key = range.to;
    chosen.weather_clause = clause_of(filter::weather, form, {});
    chosen.partner_clause = clause_of(filter::partner, form, {});
    chosen.course_clause = clause_of(filter::course, form, {});
    QProgressBar bar;
    report_control control;
    statistic(chosen, run_controls{bar, control});
    delete control.preview();
}

void fill_card()
{
    f_carte window;
    f_carte_func::print(window);
    delete window.cr2().preview();
    window.unload();
}

/// Returns the rows that the season of the round statistics passes to its report.
passed_rows fill_report_tables(const round_range& range)
{
    passed_rows season;
    run(range, [&season](const selection_arguments& chosen, const run_controls& controls) {
        run_progress bar(controls.Status);
        season = Statistics::season_tables(*Statistics::rounds_in_stats(chosen, bar));
    });
    run(
        range,
        [](const selection_arguments& chosen, const run_controls& controls) {
            Statistics::putt_statistics(chosen, controls);
        },
        clause_form::alone);
    run(range, [](const selection_arguments& chosen, const run_controls& controls) {
        Statistics::club_statistics(chosen, {&controls});
    });
    run(range, [](const selection_arguments& chosen, const run_controls& controls) {
        Statistics::cost_statistics(chosen, controls);
    });
    fill_card();
    return season;
}

pages_of_reports drawn(bool french, const passed_rows& season)
{
    pages_of_reports all;
    for (const QString& name : names_of_reports()) {
        const QString path = built_template(name + (french ? u".rpt"_s : u"_en.rpt"_s));
        const auto document = render_report(path, {}, name == u"Stat_rounds" ? season : passed_rows());
        for (int page = 0; page < document->page_count(); ++page)
            all[u"%1 %2"_s.arg(name).arg(page + 1)] = document->page_image(page, dots_per_inch);
    }
    return all;
}

}  // namespace

const QStringList& names_of_reports()
{
    static const QStringList names{u"Stat_rounds"_s, u"statPuts"_s, u"r_statSticks"_s, u"r_cost3"_s,
                                   u"r_card2"_s};
    return names;
}

pages_of_reports drawn_reports(const store_location& store, const round_range& range, bool french)
{
    const recording_frame frame;
    set_interface_language(french);
    data_environment().connection.Open(store);
    set_report_store(store);
    pages_of_reports pages = drawn(french, fill_report_tables(range));
    data_environment().abandon();
    set_interface_language(true);
    return pages;
}

pages_of_reports drawn_reports(const store_location& store, int rounds, bool french)
{
    return drawn_reports(store, round_range{key_in_diary(0), key_in_diary(rounds - 1)}, french);
}

}  // namespace verdane::testing
