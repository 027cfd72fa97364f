#pragma once

#include <QByteArray>
#include <QString>

/// Files that are copied or renamed as a whole.
namespace verdane {

/// Copies a file to a path that does not exist yet, making its folder. The path has the whole file or
/// nothing, also if the process is killed or the power fails. Fails with `store_full`, `store_read_only` or
/// `store_unreachable`.
void copy_whole_file(const QString& from, const QString& to);

/// Writes a file, replacing one of that path. Its folder exists. The path has the old file or the whole new
/// one, like that of `copy_whole_file`, and the content has reached the disk. Fails like `copy_whole_file`.
void write_whole_file(const QString& path, const QByteArray& bytes);

/// Renames a file, replacing the file at `to` in one step. Its content reaches the disk before the new name,
/// and the name before this function returns. Fails like `copy_whole_file`.
void replace_file(const QString& from, const QString& to);

}  // namespace verdane
