#pragma once

#include <QString>

#include "statistics/selected_rounds.h"

namespace verdane::Statistics {

struct handicap_result {
    missing_row missing = missing_row::none;
    /// The figure in the plain number text form, or "N/A"; empty if a row is missing.
    QString text;
};

/// The handicap of the player over the rounds of a selection (`scoring/handicap.h`). Reads the two keys and
/// the three plain values of the selection, which has at least one round. Leaves the differentials in the
/// table `hand`, every recordset closed and the statements of `rsgames` and `rshand` on whole tables. Fails
/// with `subscript` on the 367th round.
handicap_result compute_handicap(const selection_arguments& chosen);

}  // namespace verdane::Statistics
