#pragma once

namespace verdane {

/// Removes orphan shots: rows of `Stat_rounds` whose round is not in `games`. A message box shows the key of
/// each missing round, then their number, then "Fin". Each shot is a commit of its own.
///
/// Its menu entry is disabled. It fails with `misuse` on a store without shots or without rounds, and with
/// `subscript` on more than 500 missing rounds.
void clean_up_store();

}  // namespace verdane
