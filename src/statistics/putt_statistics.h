#pragma once

#include <QString>

#include "run_controls.h"
#include "selection_arguments.h"

/// The putt statistics: from the putt lengths of rounds to the report tables `s_put1` and `s_put2` and
/// their report. Here the clauses of a selection stand alone, without a leading " AND ".
namespace verdane::Statistics {

/// Every round that passes the three clauses, in time order; no date stands in the statement.
QString putt_select(const selection_arguments& chosen);

/// Fills the tables, moving the bar, and launches the report as its last act. When no round of the
/// selection has putt lengths it says so and no report opens. A hole with six putts ends in a failure
/// (`subscript`).
///
/// The walk begins at the round of `from_key`, or the first one after it, and ends with the round of
/// `to_key`; where the clauses keep that round out it goes on to the last round that passes. A range
/// that runs backwards has no round.
void putt_statistics(const selection_arguments& chosen, const run_controls& controls);

/// The same up to the finished tables, without the report. False when there is nothing to print; the
/// user has been told why.
bool fill_putt_tables(const selection_arguments& chosen, run_progress& bar);

/// The putts of the round on the current row of `rsgames2`, which is open, into the report tables, with
/// two captions for the head. True when a hole of the round has a putt. The tables hold a single round
/// afterwards, and their rating stands on the first row.
bool round_putts(const QString& caption_1, const QString& caption_2);

/// The report of that round: sets the control up, fills the tables and launches it.
void one_round_putt_report(report_control& cr2, const QString& caption_1, const QString& caption_2);

}  // namespace verdane::Statistics
