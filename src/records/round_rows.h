#pragma once

#include <QString>
#include <QStringList>

#include <array>
#include <vector>

#include "scoring/hole_arithmetic.h"
#include "scoring/limits.h"

/// One hole of a stored round in the current rows of the shared recordsets: `rsgames`, `rsgames2`,
/// `rsfield_info`, `rsvrd_fields`, `rscost`. The caller has opened and positioned them, and commits.
///
/// Holes are 1 to 18; another number fails with `misuse` and changes nothing. Strokes without a value are
/// read as 0. A penalty, a situation or a card without a value fails with `invalid_null`.
namespace verdane::Round_functions {

/// The texts of the situation boxes, which the store converts.
struct situation_texts {
    QString fairway;
    QString sand;
    QString missed;
    QString recovery;
};

/// A hole on the scorecard of the course.
struct hole_card {
    int16 yards = 0;
    /// The stroke index.
    int16 handicap = 0;
    int16 par = 0;
};

void store_strokes(int16 hole, const stroke_counts& counts);
stroke_counts read_strokes(int16 hole);

void store_penalties(int16 hole, const penalty_counts& counts);
penalty_counts read_penalties(int16 hole);

void store_situation(int16 hole, const situation_texts& boxes);
/// Without the recovery shots, which only the round window shows.
situation_counts read_situation(int16 hole);
/// The ordinals of all columns of `games2` that `read_situation` reads.
std::vector<int> situation_columns();

/// Writes the lengths of the first putts of a hole, in feet.
void store_putt_lengths(int16 hole, const std::array<int16, putt_lengths_kept>& lengths);

/// All counts of the hole that are part of its gross.
hole_figures figures_from_row(int16 hole);

/// All counts of the hole, the recovery shots included.
hole_counts read_hole(int16 hole);

int16 hole_par(int16 hole);
hole_card read_hole_card(int16 hole);

/// True if hole 18 has no strokes. The other holes do not count.
bool round_incomplete();

/// The position (from 1) of a partner's number in the text of partners, 0 if it is absent or the round has no
/// partners. A plain text search: "1" is found in "12-7-". Fails with `overflow` if the position exceeds
/// 16 bits.
int16 partner_in_round(QStringView number_text);

/// The text of partners: their numbers, each followed by "-".
QString partners_text(const QStringList& numbers);

/// Moves `rsvrd_fields` to the course with that index in a list filled from it, and returns its code.
QString course_code_at(int list_index);

/// The sum of the twelve amounts of the round. Fails with `overflow` beyond 16 bits.
int16 cost_total();

}  // namespace verdane::Round_functions
