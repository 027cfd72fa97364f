#include <QListWidget>
#include <QProgressBar>

#include <benchmark/benchmark.h>

#include <functional>
#include <memory>

#include "bench/diaries.h"
#include "bench/pairs.h"
#include "bench/statistic_pairs.h"
#include "bench/stopwatch.h"
#include "controls/Form.h"
#include "reports/preview/page_view.h"
#include "reports/preview/report_preview.h"
#include "reports/query/report_snapshot.h"
#include "reports/report_control.h"
#include "statistics/club_statistics.h"
#include "statistics/cost_statistics.h"
#include "statistics/f_carte.h"
#include "statistics/f_carte_func.h"
#include "statistics/putt_statistics.h"
#include "statistics/round_statistics.h"

/// The reports over a full diary: from the launch until the first page is painted in the preview, and
/// from the key that turns the page until the next one is.
namespace verdane::bench {

namespace {

/// Fills the tables of a report and launches it. Its control keeps the arguments.
using launch = std::function<void(const run_controls&)>;

void in_filled_store(const launch& run, const std::function<void(report_control&)>& measure)
{
    const opened_store store(diaries_of_run().full());
    set_report_store(diaries_of_run().full());
    QProgressBar bar;
    report_control control;
    run({bar, control});
    delete control.preview();
    measure(control);
}

void show_pages(benchmark::State& state, report_control& control)
{
    for (auto _ : state) {
        const stopwatch watch;
        control.Action(report_control::run_now);
        Form::paint_now();
        state.SetIterationTime(watch.seconds());
        delete control.preview();
    }
}

void turn_pages(benchmark::State& state, report_control& control)
{
    control.Action(report_control::run_now);
    const std::unique_ptr<report_preview> preview(control.preview());
    page_view& pages = preview->pages();
    Form::paint_now();
    for (auto _ : state) {
        const int before = pages.current_page();
        const stopwatch watch;
        pages.next_page();
        Form::paint_now();
        state.SetIterationTime(watch.seconds());
        if (pages.current_page() != before)
            continue;
        while (pages.current_page() > 0)
            pages.previous_page();
        Form::paint_now();
    }
}

void card_report(benchmark::State& state)
{
    const opened_store store(diaries_of_run().full());
    set_report_store(diaries_of_run().full());
    f_carte window;
    f_carte_func::print(window);
    delete window.cr2().preview();
    show_pages(state, window.cr2());
    window.unload();
}

template <typename Statistic>
launch over_all_rounds(Statistic statistic, clause_form clauses = clause_form::appended)
{
    return [=](const run_controls& controls) {
        statistic(first_rounds(testing::rounds_of_full_diary, clauses), controls);
    };
}

void register_pages(const std::string& name, const launch& run)
{
    register_timed(name, [run](benchmark::State& state) {
        in_filled_store(run, [&state](report_control& control) { show_pages(state, control); });
    });
}

}  // namespace

void register_report_pages()
{
    const launch costs = over_all_rounds(Statistics::cost_statistics);
    register_pages("report_of_rounds", over_all_rounds(Statistics::round_statistics));
    register_pages("report_of_putts", over_all_rounds(Statistics::putt_statistics, clause_form::alone));
    register_pages("report_of_clubs",
                   over_all_rounds([](const selection_arguments& chosen, const run_controls& controls) {
                       Statistics::club_statistics(chosen, {&controls});
                   }));
    register_pages("report_of_costs", costs);
    register_timed("report_card", card_report);
    register_timed("report_of_costs_next_page", [costs](benchmark::State& state) {
        in_filled_store(costs, [&state](report_control& control) { turn_pages(state, control); });
    });
}

}  // namespace verdane::bench
