#pragma once

#include <QString>
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
/// files. The copy can be written. Fails like `copy_whole_file`.
void copy_store_files(const QString& from, const QString& to);

/// Fills a store without rows; the caller closes it.
using store_filling = std::function<void(Connection1& store)>;

/// Makes the file of a store of its own in a `work_folder` and fills it. The file is closed, complete and
/// checked afterwards. Fails like `fill`, `Connection1::Open` and `check_copy`, and with `store_full` if the
/// file is not complete.
void write_closed_store(const QString& path, const store_filling& fill);

/// Copies a diary, row by row and compared, to a file of its own in a `work_folder`. Fails like `copy_diary`
/// and `write_closed_store`.
void write_closed_copy(Connection1& from, const QString& path);

/// Copies a diary, row by row and compared, to `free_copy_path` before it is changed. Returns the path, which
/// has the whole copy or nothing, also if the process is killed. Fails like `work_folder`,
/// `write_closed_copy` and `rename_without_replacing`.
QString keep_copy(Connection1& store, const QString& why);

}  // namespace verdane
