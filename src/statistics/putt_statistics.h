#pragma once

#include <QString>

#include "statistics/run_controls.h"
#include "statistics/selection_arguments.h"

/// The putt statistics: from the putt lengths of rounds to the report tables `s_put1` and `s_put2` and
/// their report. The clauses of the selection have no leading " AND " here.
namespace verdane::Statistics {

/// The statement for every round that passes the three clauses, in time order; it contains no dates.
QString putt_select(const selection_arguments& chosen);

/// Fills the tables, moving the bar, and finally launches the report. If no round of the selection has
/// putt lengths, a message box reports that and no report opens. A hole with six putts fails with
/// `subscript`.
///
/// Reading begins at the round of `from_key`, or the first one after it, and ends with the round of
/// `to_key`; if the clauses exclude that round, it continues to the last round that passes. A reversed range
/// has no round.
void putt_statistics(const selection_arguments& chosen, const run_controls& controls);

/// The same up to the finished tables, without the report. False when there is nothing to print,
/// which a message box has reported.
bool fill_putt_tables(const selection_arguments& chosen, run_progress& bar);

/// Writes the putts of the round on the current row of `rsgames2`, which must be open, to the report tables,
/// with two captions for the heading. True when a hole of the round has a putt. The tables then contain a
/// single round, with its rating on the first row.
bool round_putts(const QString& caption_1, const QString& caption_2);

/// Prints the putts of that round: sets up the control, fills the tables and launches the report.
void one_round_putt_report(report_control& cr2, const QString& caption_1, const QString& caption_2);

}  // namespace verdane::Statistics
