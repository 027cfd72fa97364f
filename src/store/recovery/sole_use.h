#pragma once

#include "store/Connection1.h"

/// Stores that no other program may have open, by whatever name. The lock of a store excludes programs that
/// use the same file or a link to it, but not those that use a second name of the file (a hard link).
namespace verdane {

/// Opens a store. False if it has no tables, or if there is none. Fails like `Connection1::OpenExisting`, and
/// with `store_locked` if another program has the file open.
bool open_alone(Connection1& store, const store_location& place,
                soundness_check check = soundness_check::while_opening);

/// Opens a store, and creates its tables if there are none. Fails like `Connection1::Open` and in the same
/// way.
void open_or_create_alone(Connection1& store, const store_location& place);

}  // namespace verdane
