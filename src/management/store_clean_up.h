#pragma once

namespace verdane {

/// Removes orphan shots: rows of `Stat_rounds` whose round is no longer in `games`. A box shows the key
/// of each round that was missed, then their number, then "Fin". Each shot is a commit of its own.
///
/// A tool for whoever switches its entry of the menu on, not for every user: it fails with `misuse` on
/// a store without shots or without rounds, and with `subscript` past 500 missing rounds.
void clean_up_store();

}  // namespace verdane
