#pragma once

#include <QString>

#include <functional>

namespace verdane {

class report_control;

/// Prints the putts of one round, the one on the current row of `rsgames2`, through a control of the
/// window that shows it, under two captions.
using round_putt_report =
    std::function<void(report_control& cr2, const QString& caption_1, const QString& caption_2)>;

/// The statistics make this report and the round window asks for it, while neither room knows the
/// other: the program hands the one to the other here when it starts.
void set_round_putt_report(round_putt_report routine);

/// Asks for the report. Fails with `misuse` in a program that has none.
void launch_round_putt_report(report_control& cr2, const QString& caption_1, const QString& caption_2);

}  // namespace verdane
