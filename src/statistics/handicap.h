#pragma once

#include <QString>

#include "statistics/selected_rounds.h"

namespace verdane::Statistics {

struct handicap_result {
    missing_row missing = missing_row::none;
    /// The figure in the plain number text form, or "N/A"; empty when a row is missing.
    QString text;
};

/// The player's handicap over the rounds of a selection: the mean of the best differentials, scaled.
/// Reads the two keys and the three plain values of the selection, of which at least one round is
/// there. Leaves the differentials in the table `hand`, every recordset closed and the sources of
/// `rsgames` and `rshand` at whole tables. Fails with `subscript` at the 367th round.
handicap_result compute_handicap(const selection_arguments& chosen);

}  // namespace verdane::Statistics
