#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <system_error>

#include "base/run_time_failure.h"

/// Files that are copied or renamed as a whole.
namespace verdane {

/// What an error of the file system means: `store_full` (also a quota), `store_read_only` or
/// `store_unreachable`.
failure_kind kind_of_file_error(const std::error_code& error);

/// Makes a folder, or that of a path, and those above it. The names of new folders have reached the disk.
/// Fails with `store_full`, `store_read_only` or `store_unreachable`.
void make_folder(const QString& folder);
void make_folder_of(const QString& path);

/// Makes a folder whose name begins with a text and ends with six random characters, for this user only.
/// Returns its path. Fails in the same way.
QString make_unique_folder(const QString& start);

/// Copies a file to a path that does not exist yet, making its folder. The path has the whole file or
/// nothing, also if the process is killed or the power fails. Fails with `store_full`, `store_read_only` or
/// `store_unreachable`.
void copy_whole_file(const QString& from, const QString& to);

/// Writes a file, replacing one of that path. Its folder exists. The path has the old file or the whole new
/// one, like that of `copy_whole_file`, and the content has reached the disk. Fails like `copy_whole_file`.
void write_whole_file(const QString& path, const QByteArray& bytes);

/// Renames a file, replacing the file at `to` in one step. Its content reaches the disk before the new name,
/// and the name before this function returns. Fails like `copy_whole_file`, and with `store_other` or
/// `store_full` if the file has its new name, which did not reach the disk.
void replace_file(const QString& from, const QString& to);

/// Renames a file in the same way unless there is a file or a link at `to`: false then, and nothing changes.
[[nodiscard]] bool rename_without_replacing(const QString& from, const QString& to);

/// Removes the files of one folder that exist. All are removed, also on the disk, when this function returns.
/// Fails like `replace_file`.
void remove_files(const QStringList& paths);

/// Gives a file or folder the permissions of another. Fails like `copy_whole_file`.
void copy_mode(const QString& from, const QString& to);

}  // namespace verdane
