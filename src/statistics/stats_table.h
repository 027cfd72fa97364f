#pragma once

#include "scoring/round_lines.h"
#include "statistics/selection.h"

/// Writes the report table `stats` through `rsstats`. A changed row is committed when another row becomes the
/// current one.
namespace verdane::stats_table {

/// Opens the table, sets every figure of every row to 0 and moves to row 1.
void open_cleared();

/// Moves to a row, counted from 0 (`tables::stats::row`).
void move_to_row(int row);

/// Writes figures to the current row: all of them, or both nines and their total only.
void write_line(const stats_line& line);
void write_nines(const stats_line& line);

/// The texts of row 0: the filters and both ends of the range.
void write_heading(const selection_arguments& chosen);

/// Both nines and the total of every row from row 1 on, added from its holes. The rows of the averages are
/// not changed.
void write_totals();

/// The handicap of row 0, which becomes the current row.
void write_handicap(const QString& text);

/// The number of rounds of row 0; then commits everything and closes the table.
void write_round_count_and_close(int16 rounds);

}  // namespace verdane::stats_table
