#pragma once

#include <QString>
#include <QStringList>

/// Invented rows in the tables that the reports print.
#include "store/store_location.h"

namespace verdane::testing {

/// The kind of figures in a table.
enum class figures { usual, none, extreme };

/// Both rows of `r_card`: hole h is 300 + 10 h yards long, has the stroke index h and a par of 4 (3 on
/// holes 3 and 12, 5 on 9 and 18); club k has 240 - 10 k yards. `name` is the course.
void fill_card(const store_location& store, const QString& name, figures kind = figures::usual);

/// Both tables of the putts. Usual: k * j holes in k putts from band j, and in row i of `s_put2`
/// i * j putts in band j; the means are 1.11 to 7.77 and 2.5, the score 2.25 is "MOYEN".
void fill_putts(const store_location& store, figures kind = figures::usual);
/// The captions and the rating of a report over one round.
void make_one_round_putts(const store_location& store);

/// The 14 rows of `stat_sticks`. Usual: club k (from 1) has 10 k shots, the longest 300 - 10 k, the mean
/// 280.5 - 10 k, shares of 50, 33.3 and 16.6 percent, 8.33 missed, 4 penalties and, from club 10 on, 2
/// holed; club 13 has no shots, club 12 none that counts for its mean.
void fill_clubs(const store_location& store, figures kind = figures::usual);

/// `rounds` rows of `r_cost` on consecutive days from 1 June 2023, half past nine: 60 in green fees, 20
/// more in every second one, and 5 for balls.
void fill_costs(const store_location& store, int rounds, figures kind = figures::usual);

/// All of these and the lines of `stats`, as on the pages that are stored for comparison.
void fill_all_reports(const store_location& store);

}  // namespace verdane::testing
