#pragma once

#include <QStringList>

namespace verdane::Round_functions {

/// Opens `rsgames` on every stored round, the earliest first. The statistics leave the recordset with a
/// source that has no order; whoever shows or names rounds opens it here. Fails with `misuse` when it is
/// open.
void open_rounds_in_time_order();

/// A list's line for each row of `rsgames`, in the rows' order, with the mark of an incomplete round.
/// The caller has opened `rsgames`, which is left at its end.
QStringList round_list_lines();

}  // namespace verdane::Round_functions
