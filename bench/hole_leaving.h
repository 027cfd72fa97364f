#pragma once

#include <benchmark/benchmark.h>

#include "bench/diaries.h"
#include "bench/round_in_window.h"
#include "bench/stopwatch.h"
#include "controls/TabStrip.h"
#include "records/Main_module.h"
#include "round/f_new_round.h"
#include "scoring/limits.h"
#include "tests/support/full_diary.h"

/// Shared by the two pairs that measure leaving a hole: its figures are changed, the next tab is
/// clicked, and the time until the result is measured.
namespace verdane::bench {

using namespace Qt::StringLiterals;

constexpr int round_of_left_holes = 150;

enum class hole_seen { filled_in, painted };

/// Leaves hole after hole of the open round, each changed by `change(window)` before the clock starts.
template <typename Change>
void leave_holes(benchmark::State& state, f_new_round& window, hole_seen end, Change change)
{
    const auto change_hole = [&] {
        // Every save uses an entry of the list of keys, and a measurement saves more often than the list
        // allows.
        Main_module::round_key_count = diaries::rounds_with_free_keys;
        change(window);
        Form::paint_now();
    };
    // The first commit of a connection creates the log, once per start; it is not measured.
    auto& holes = *window.findChild<TabStrip*>(u"TabStrip1"_s);
    int hole = 2;
    change_hole();
    holes.click(hole);
    for (auto _ : state) {
        change_hole();
        hole = hole % hole_count + 1;
        const stopwatch watch;
        holes.click(hole);
        if (end == hole_seen::painted)
            Form::paint_now();
        state.SetIterationTime(watch.seconds());
        if (holes.selected() != hole)
            state.SkipWithError("the hole was not left");
    }
}

/// The same with the stored round that is opened by `open(key, work)`, on the page that is measured.
template <typename Open, typename Change>
void leave_holes_of_stored_round(benchmark::State& state, hole_seen end, Open open, Change change,
                                 const std::optional<store_location>& diary = {})
{
    const opened_store store(diary ? *diary : store_location::file(diaries_of_run().with_free_keys()));
    open_tables_of_list();
    open(testing::key_in_diary(round_of_left_holes),
         [&](f_new_round& window) { leave_holes(state, window, end, change); });
}

}  // namespace verdane::bench
