#pragma once

#include <QString>
#include <QStringList>

#include "scoring/hole_arithmetic.h"

/// One hole of a stored round in the current rows of the shared recordsets: `rsgames`, `rsgames2`,
/// `rsfield_info`, `rsvrd_fields`, `rscost`. The caller has opened and positioned them, and commits.
///
/// Holes are 1 to 18; another number fails with `misuse` and touches nothing. Stroke columns without
/// a value read as 0; a penalty, situation or card column without one fails with `invalid_null`.
namespace verdane::Round_functions {

struct strokes {
    int16 long_shots = 0;
    int16 approach = 0;
    int16 putts = 0;
};

struct penalties {
    int16 rule = 0;
    int16 water = 0;
    int16 bounds = 0;
    int16 lost = 0;
};

struct situation {
    int16 sand = 0;
    int16 missed = 0;
    int16 fairway = 0;
};

/// The situation boxes as they stand; the store converts them.
struct situation_texts {
    QString fairway;
    QString sand;
    QString missed;
    QString recovery;
};

/// The card of a hole: yards, stroke index, par.
struct hole_card {
    int16 yards = 0;
    int16 handicap = 0;
    int16 par = 0;
};

void store_strokes(int16 hole, const strokes& values);
strokes read_strokes(int16 hole);

void store_penalties(int16 hole, const penalties& values);
penalties read_penalties(int16 hole);

void store_situation(int16 hole, const situation_texts& boxes);
situation read_situation(int16 hole);

/// Recovery shots; the round window alone shows them.
int16 read_recovery(int16 hole);

/// All counts of the hole that make its gross.
hole_figures figures_from_row(int16 hole);

int16 hole_par(int16 hole);
hole_card read_hole_card(int16 hole);

/// True when hole 18 has no strokes, whatever the other holes hold.
bool round_incomplete();

/// The position (from 1) of a partner's number in the text of partners, 0 when it is not there or
/// the round has none. A plain text search: "1" is found in "12-7-".
int16 partner_in_round(QStringView number_text);

/// The numbers of the chosen partners, each followed by "-".
QString partners_text(const QStringList& numbers);

/// The code of the course at that position of `rsvrd_fields`, which is left on that row.
QString course_code_at(int list_index);

/// The twelve amounts of the round's cost row, added up in 16 bits.
int16 cost_total();

}  // namespace verdane::Round_functions
