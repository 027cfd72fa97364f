#pragma once

#include <QString>

/// Files that are copied or renamed as a whole.
namespace verdane {

/// Copies a file to a path that does not exist yet, making its folder. The path has the whole file or
/// nothing, also if the process is killed or the power fails. Fails with `store_full`, `store_read_only` or
/// `store_unreachable`.
void copy_whole_file(const QString& from, const QString& to);

/// Renames a file, replacing the file at `to` in one step. Its content reaches the disk before the new name,
/// and the name before this function returns. Fails like `copy_whole_file`.
void replace_file(const QString& from, const QString& to);

}  // namespace verdane
