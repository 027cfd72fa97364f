#pragma once

#include <QString>

#include <functional>

namespace verdane {

/// Removes orphan shots: rows of `Stat_rounds` whose round is not in `games`. Each shot is committed
/// separately. `show` is called with the key of each missing round, before its shots are deleted, and finally
/// with the number of missing rounds. `rsgames` and `rsStat_rounds` must be closed and are closed again.
///
/// Fails with `misuse` on a store without shots or without rounds, and with `subscript` on more than 500
/// missing rounds. What was deleted before a failure remains deleted.
void remove_orphan_shots(const std::function<void(const QString&)>& show);

}  // namespace verdane
