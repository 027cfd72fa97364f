#pragma once

#include <QString>

namespace verdane {

/// Deletes the round with that key (14 digits) from `games`, `games2`, `Stat_rounds` and `cost`, in this
/// order. Each table is committed separately: after a failure between two of them, the rest of the round is
/// still in the store. `rsStat_rounds` and `rscost` must be closed; they are closed again and keep the source
/// that was used here. `rsgames` is not requeried, and the key remains in `round_keys`.
void remove_round(const QString& key);

}  // namespace verdane
