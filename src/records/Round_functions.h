#pragma once

#include <QString>

#include "records/hole_boxes.h"
#include "records/round_rows.h"
#include "scoring/round_arithmetic.h"

/// The scoring of a hole and of a round. With `from_row` the figures come from the current row of
/// `rsgames`, without it from the boxes of the open round window, whatever hole they show. The card
/// always comes from the current row of `rsfield_info`. A caller that asks many questions about one
/// hole takes `figures_of` once and asks the pure functions.
namespace verdane::Round_functions {

/// The figures of a hole from the source that the flag names.
hole_figures figures_of(int16 hole, bool from_row);

int16 hole_long(int16 hole, bool from_row);
int16 hole_approach(int16 hole, bool from_row);
int16 hole_putts(int16 hole, bool from_row);
int16 hole_pen_rule(int16 hole, bool from_row);
int16 hole_pen_water(int16 hole, bool from_row);
int16 hole_pen_bounds(int16 hole, bool from_row);
int16 hole_pen_lost(int16 hole, bool from_row);

/// The four penalties added.
int16 hole_penalties(int16 hole, bool from_row);
/// Penalties, long shots, approach shots and putts added.
int16 hole_gross(int16 hole, bool from_row);

/// 1 or 0.
int in_regulation(int16 hole, bool from_row);
bool not_in_regulation(int16 hole, bool from_row);

/// The text of one class of `hole_classes.h` for the hole.
QString hole_cell(int selector, int16 hole, bool from_row);

struct round_figures {
    round_totals totals;
    double differential = 0;
};

/// Totals of the round on the current rows and its differential against the current row of
/// `rsvrd_fields`. Holes 1 to 17 come from the row; hole 18 too when the flag says so, else from the
/// boxes, because the window shows totals before hole 18 is stored. It touches no window.
round_figures round_score(bool last_hole_from_row);

/// The labels of the window's totals, as text.
struct round_labels {
    QString l_hand;
    QString l_brut;
    QString l_net;
    QString l_plus;
};

/// Differential, gross, net score and strokes over par. Fails with `overflow`.
round_labels labels_of(const round_figures& figures);

}  // namespace verdane::Round_functions
