#pragma once

#include <QString>

#include <optional>

#include "records/round_rows.h"
#include "scoring/hole_arithmetic.h"
#include "scoring/round_totals.h"

/// The scoring of a hole and of a round. The par of a hole always comes from the current row of
/// `rsfield_info`. A caller that needs several results for one hole calls `figures_from_source` once and then
/// the pure functions of `scoring`.
namespace verdane::Round_functions {

/// Where the figures of a hole come from: `from_row` reads them from the current row of `rsgames`. Otherwise
/// the caller passes them, as read from the boxes of the round window; the hole argument then selects the par
/// only.
using figure_source = std::optional<hole_figures>;
inline constexpr std::nullopt_t from_row = std::nullopt;

/// The figures of a hole from that source.
hole_figures figures_from_source(int16 hole, const figure_source& source);

int16 hole_long(int16 hole, const figure_source& source);
int16 hole_approach(int16 hole, const figure_source& source);
int16 hole_putts(int16 hole, const figure_source& source);
int16 hole_pen_rule(int16 hole, const figure_source& source);
int16 hole_pen_water(int16 hole, const figure_source& source);
int16 hole_pen_bounds(int16 hole, const figure_source& source);
int16 hole_pen_lost(int16 hole, const figure_source& source);

/// The four penalties added.
int16 hole_penalties(int16 hole, const figure_source& source);
/// Penalties, long shots, approach shots and putts added.
int16 hole_gross(int16 hole, const figure_source& source);

/// 1 or 0.
int in_regulation(int16 hole, const figure_source& source);
bool not_in_regulation(int16 hole, const figure_source& source);

/// The text of one class of `hole_classes.h` for the hole.
QString hole_cell(int selector, int16 hole, const figure_source& source);

struct round_figures {
    round_totals totals;
    double differential = 0;
};

/// Totals of the round on the current rows, and its differential against the current row of
/// `rsvrd_fields`. Holes 1 to 17 come from the row. Hole 18 comes from `last_hole`, because the round window
/// shows totals before hole 18 is stored. Fails with `overflow` beyond 16 bits.
round_figures round_score(const figure_source& last_hole);

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
