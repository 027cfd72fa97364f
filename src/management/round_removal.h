#pragma once

#include <QString>

namespace verdane {

/// Erases the round of that key (14 digits) from `games`, `games2`, `Stat_rounds` and `cost`, in this
/// order. Each table is a commit of its own: a failure between two of them leaves the rest of the
/// round in place. `rsStat_rounds` and `rscost` are closed before and afterwards, and keep the source
/// of their walk; `rsgames` is not read again, nor is the key taken from `round_keys`.
void remove_round(const QString& key);

}  // namespace verdane
