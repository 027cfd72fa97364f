#pragma once

#include <functional>

#include "store/Connection1.h"
#include "transfer/exit_status.h"

namespace verdane {

/// Opens a store that has no rows of its own, creating it if needed, runs a step that fills it, closes it,
/// and checks the file that is left. Refused in the current language are a store with rows, with `not_empty`,
/// tables that do not keep the order of their rows, with `failed`, and a reserved name, with `usage`; a
/// failure is reported. A file that does not exist is made in a `work_folder`. It gets its name after it was
/// checked, so there is a whole file or none, also if the process is killed.
///
/// Fails like `open_or_create_alone`, `work_folder` and `take_store_lock`.
exit_status fill_empty_store(Connection1& target, const store_location& to,
                             const std::function<void()>& fill);

/// True for a file whose name a new store may not have (`is_reserved_name`), and its refusal.
bool has_reserved_name(const store_location& store);
exit_status refuse_reserved_name(const store_location& store);

/// "1 row", in the current language.
QString counted_rows(int rows);

}  // namespace verdane
