#pragma once

namespace verdane::testing {

/// From now on the writes of SQLite in this process fail with that error of the operating system, as on a
/// disk that is full or was made read-only.
void fail_writes(int error);

/// From now on this process can enlarge no file, as under a quota.
void limit_files_to_nothing();

}  // namespace verdane::testing
