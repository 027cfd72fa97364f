#pragma once

#include <QStringList>

namespace verdane::Round_functions {

/// A list's line for each row of `rsgames`, in the rows' order, with the mark of an incomplete round.
/// The caller has opened `rsgames`, which is left at its end.
QStringList round_list_lines();

}  // namespace verdane::Round_functions
