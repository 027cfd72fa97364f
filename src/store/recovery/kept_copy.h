#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

#include <array>
#include <functional>

namespace verdane {

class Connection1;

struct store_location;

/// The endings of the engine's files next to a store that can have rows which the file of the store lacks.
inline constexpr std::array<QStringView, 2> endings_of_logs{u"-journal", u"-wal"};

/// A path that does not exist, for a copy of a store that is about to be changed:
/// `copies/NAME-YYYY-MM-DD-WHY.db` in the folder of the file, or of the program's file for a source. A number
/// follows if that file or a log of it exists.
QString free_copy_path(const store_location& store, const QString& why);

/// Copies the file of a store and the logs of it that have content, which may be read-only, to a path without
/// files. `from` may be a link. The copy can be written. Fails like `copy_whole_file`.
void copy_store_files(const QString& from, const QString& to);

/// Checks the file of a store that was closed after rows were written: closing a connection does not fail if
/// the log cannot be copied into the file. Fails with `store_full` if the log has content, and like
/// `check_copy`.
void check_closed(const QString& path);

/// Fills a store without rows; the caller closes it.
using store_filling = std::function<void(Connection1& store)>;

/// Makes the file of a store of its own in a `work_folder` and fills it. The file is closed, complete and
/// checked afterwards. Fails like `fill`, `Connection1::Open` and `check_copy`, and with `store_full` if the
/// file is not complete.
void write_closed_store(const QString& path, const store_filling& fill);

/// Copies a diary, row by row and compared, to a file of its own in a `work_folder`. Fails like `copy_diary`
/// and `write_closed_store`.
void write_closed_copy(Connection1& from, const QString& path);

/// Copies the file of a store, if it exists, and the logs that have content to `free_copy_path` and these
/// endings. Returns the paths, that of the file first. No file is replaced. If the process is killed, the
/// path of the file has the whole file with its logs or nothing. Fails like `work_folder`, `copy_whole_file`
/// and `rename_without_replacing`.
QStringList keep_files(const store_location& store, const QString& why);

/// Copies a diary, row by row and compared, to `free_copy_path` before it is changed. Returns the path, which
/// has the whole copy or nothing, also if the process is killed. Fails like `work_folder`,
/// `write_closed_copy` and `rename_without_replacing`.
QString keep_copy(Connection1& store, const QString& why);

}  // namespace verdane
