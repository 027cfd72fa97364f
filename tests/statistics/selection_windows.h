#pragma once

#include <QList>
#include <QString>

#include <functional>

#include "statistics/f_date_range.h"
#include "tests/support/hand.h"
#include "tests/support/window_look.h"

/// What the tests of the selection window share.
namespace verdane::testing {

/// "f_date_range", or its twin in the current language.
QString selection_window();

/// Opens the selection window, runs the script and leaves through the cancel button.
void in_selection_window(const std::function<void(hand&)>& script,
                         statistics_mode mode = statistics_mode::round);

/// One step of the progress bar: its value, and whether the bar was visible.
struct bar_step {
    int value = 0;
    bool seen = false;
    bool operator==(const bar_step&) const = default;
};

/// The same, keeping every step of the bar.
QList<bar_step> bar_in_selection_window(const std::function<void(hand&)>& script,
                                        statistics_mode mode = statistics_mode::round);

/// Selects the range from the first round to the last in a window that is not shown.
void select_all_rounds(const f_date_range& window);

/// Selects a range by the lines of the two lists (from 0).
void select_range(hand& user, int from, int to);

/// Starts the statistics of a mode.
void run(hand& user, statistics_mode mode = statistics_mode::round);
/// Closes a box that has only a text and OK, after comparing it.
void answer_plain(hand& user, QStringView french, QStringView english);
/// Closes the box for a selection without a round entered shot by shot.
void answer_no_detail(hand& user);
/// Closes the box for a selection without a shot, in the club statistics.
void answer_no_shots(hand& user);
/// Closes the box for a selection without a round.
void answer_no_round(hand& user);
/// Waits until the report is open, compares how it was launched and closes it.
void close_report(hand& user, statistics_mode mode = statistics_mode::round);
/// Starts the statistics of rounds that have no shots, up to the closed report.
void run_without_detail(hand& user);

}  // namespace verdane::testing
