#pragma once

#include <QString>

namespace verdane {

/// Looks at the files of the store at `path` before the engine opens them, and changes nothing. No file, or
/// an empty one, is a store that is still to be created, unless another file shows that there was content:
/// a write-ahead log, or for an empty file a dated copy (`copies/NAME-YYYY-MM-DD.db` beside it).
/// Fails with `store_damaged`, `store_read_only` or `store_unreachable`.
void check_store_files(const QString& path);

/// Removes the file of a store that could not be created, with the files that the engine keeps beside it.
void remove_store_files(const QString& path);

}  // namespace verdane
