#pragma once

#include <QString>

#include <array>

#include "scoring/club_sums.h"
#include "statistics/selection.h"

/// Writes the report table `stat_sticks` through `rsstat_sticks`: one row for each club, in table
/// order.
namespace verdane::club_table {

/// The figures of one club as texts for the table: shots, longest, average; then the shares in the
/// fairway, right, left, missed, with a penalty, holed. "0" throughout for a club without shots; an
/// empty average for one without a clean shot.
using club_texts = std::array<QString, 9>;
club_texts texts_of(const club_sums& sums);

/// Opens the table.
void open();
/// The texts of row 1: the range and the choices.
void write_heading(const selection_arguments& chosen);
/// The name of every club.
void write_names();
/// The figures of clubs 1 to 13. The putter's row is not changed.
void write_figures(const bag_sums& clubs);
/// The number of rounds on row 1; then commits everything and closes the table.
void write_round_count_and_close(int16 rounds);

}  // namespace verdane::club_table
