#pragma once

#include <QString>

#include "statistics/run_controls.h"
#include "statistics/selection.h"

/// The putt statistics: from the putt lengths of rounds to the report tables `s_put1` and `s_put2` and
/// their report. The clauses of the selection have the form `alone`.
namespace verdane::Statistics {

/// Fills the tables, moving the bar, and finally launches the report. If no round of the selection has
/// putt lengths, a message box reports that and no report opens. A hole with six putts fails with
/// `subscript`. `gather_putts` defines which rounds are read.
void putt_statistics(const selection_arguments& chosen, const run_controls& controls);

/// The same up to the finished tables, without the report. False if there is nothing to print,
/// which a message box has reported.
bool fill_putt_tables(const selection_arguments& chosen, run_progress& bar);

/// Writes the putts of the round on the current row of `rsgames2`, which must be open, to the report tables,
/// with two captions for the heading. True if a hole of the round has a putt. The tables then contain a
/// single round, with its rating on the first row.
bool round_putts(const QString& caption_1, const QString& caption_2);

/// Prints the putts of that round: sets up the control, fills the tables and launches the report.
void one_round_putt_report(report_control& cr2, const QString& caption_1, const QString& caption_2);

}  // namespace verdane::Statistics
