#pragma once

#include "scoring/round_sums.h"
#include "statistics/selection_arguments.h"

/// Writes the rows of the report table `stats` through `rsstats`, in table order. Moving to another row
/// commits the changed one.
namespace verdane::stats_table {

/// Opens `rsstats`, sets every figure of every row to 0 and moves to row 1.
void open_cleared();

/// The detail pass: for every row of `rsStat_rounds` (one for each hole, eleven columns) writes the
/// hole's figures into rows 1 to 9, starting and ending on row 1. Fails with `subscript` on a hole that
/// is not 1 to 18.
void write_detail();

/// The summary pass: every row, from the sums over the rounds. The table stays open.
void write_round_lines(const round_sums& sums);

/// The texts of row 0: the filters and both ends of the range.
void write_heading(const selection_arguments& chosen);

/// Both nines and the total of every row from row 1 on, added from its holes. The rows of the averages
/// are not changed.
void write_totals();

/// The handicap of row 0, which becomes the current row.
void write_handicap(const QString& text);

/// The number of rounds of row 0; then commits everything and closes the table.
void write_round_count_and_close(int16 rounds);

}  // namespace verdane::stats_table
