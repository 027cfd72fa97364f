#include <QApplication>
#include <QEvent>
#include <QProgressBar>

#include <benchmark/benchmark.h>

#include <functional>
#include <memory>
#include <optional>

#include "bench/diaries.h"
#include "bench/pairs.h"
#include "bench/statistic_pairs.h"
#include "bench/stopwatch.h"
#include "controls/Form.h"
#include "reports/preview/page_view.h"
#include "reports/preview/report_preview.h"
#include "reports/query/report_snapshot.h"
#include "reports/report_control.h"
#include "reports/report_document.h"
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

/// The rounds of the report with which the report of all costs is compared.
constexpr int rounds_of_short_report = 20;

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

/// The time until the pages of the preview are painted first.
class first_paint_time : public QObject {
public:
    first_paint_time() { qApp->installEventFilter(this); }

    /// Runs events until then.
    double seconds() const
    {
        while (!seconds_)
            Form::paint_now();
        return *seconds_;
    }

    bool eventFilter(QObject* target, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && target->parent() != nullptr &&
            target->parent()->objectName() == QStringView(u"page_view")) {
            qApp->removeEventFilter(this);
            // An event posted now is handled after the window is painted, and before any event that the
            // painting posts.
            QMetaObject::invokeMethod(
                this, [this] { seconds_ = watch_.seconds(); }, Qt::QueuedConnection);
        }
        return false;
    }

private:
    const stopwatch watch_;
    std::optional<double> seconds_;
};

void show_first_page(benchmark::State& state, report_control& control)
{
    for (auto _ : state) {
        const first_paint_time until_painted;
        control.Action(report_control::run_now);
        state.SetIterationTime(until_painted.seconds());
        delete control.preview();
    }
}

/// Runs events until the preview has laid out all pages.
void wait_for_all_pages(const report_preview& preview)
{
    while (!preview.document().is_complete())
        Form::paint_now();
}

/// From the launch until the last page can be painted.
void lay_out_all_pages(benchmark::State& state, report_control& control)
{
    for (auto _ : state) {
        const stopwatch watch;
        control.Action(report_control::run_now);
        wait_for_all_pages(*control.preview());
        state.SetIterationTime(watch.seconds());
        delete control.preview();
    }
}

/// Lays all pages out before.
void turn_pages(benchmark::State& state, report_control& control)
{
    control.Action(report_control::run_now);
    const std::unique_ptr<report_preview> preview(control.preview());
    page_view& pages = preview->pages();
    wait_for_all_pages(*preview);
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
    show_first_page(state, window.cr2());
    window.unload();
}

template <typename Statistic>
launch over_rounds(int rounds, Statistic statistic, clause_form clauses = clause_form::appended)
{
    return [=](const run_controls& controls) { statistic(first_rounds(rounds, clauses), controls); };
}

template <typename Statistic>
launch over_all_rounds(Statistic statistic, clause_form clauses = clause_form::appended)
{
    return over_rounds(testing::rounds_of_full_diary, statistic, clauses);
}

using measurement = void (*)(benchmark::State&, report_control&);

void register_pages(const std::string& name, const launch& run, measurement measure = show_first_page)
{
    register_timed(name, [=](benchmark::State& state) {
        in_filled_store(run, [&](report_control& control) { measure(state, control); });
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
    register_pages("report_of_costs_floor", over_rounds(rounds_of_short_report, Statistics::cost_statistics));
    register_pages("report_of_costs_all_pages", costs, lay_out_all_pages);
    register_pages("report_of_costs_next_page", costs, turn_pages);
    register_timed("report_card", card_report);
}

}  // namespace verdane::bench
