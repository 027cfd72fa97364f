#pragma once

#include "base/language.h"
#include "scoring/putt_figures.h"
#include "statistics/selection.h"

/// The two grids of the putt statistics, `s_put1` (putts by first length) and `s_put2` (where putts
/// stop), written through `rss_put1` and `rss_put2`. Changes are pending until `commit_and_close`.
namespace verdane::putt_tables {

void open();

/// Every figure of both grids. The rating is blank on all rows afterwards.
void write_grids(const putt_figures& figures);

/// The captions of the axes, on the first rows, in the current language.
void write_captions();

/// The rating of a single round is on the first row, that of a selection on the last.
void write_rating_on_first_row(const text_pair& rating);
void write_rating_on_last_row(const text_pair& rating);

/// The two texts for both ends of the range.
void write_range(const QString& from, const QString& to);
/// The filters of a selection.
void write_choices(const QString& weather, const QString& partner, const QString& course);
void write_round_count(int16 rounds);

void commit_and_close();

}  // namespace verdane::putt_tables
