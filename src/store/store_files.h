#pragma once

#include <QString>

#include <memory>

class QLockFile;

namespace verdane {

/// The path of a file with its links followed, also if the file is missing. The engine derives the names of
/// its other files from it.
QString real_path(const QString& path);

/// Checks the files of the store at `path` before the engine opens them, and changes nothing. If there is no
/// file, or an empty one, the store is still to be created, unless another file shows that there was content:
/// a write-ahead log, a rollback journal with old pages, or for an empty file a dated copy
/// (`copies/NAME-YYYY-MM-DD.db` in the same folder). Fails with `store_damaged`, `store_read_only` or
/// `store_unreachable`.
void check_store_files(const QString& path);

/// Checks the file of a copy in the same way. It is only read, so it may be read-only.
void check_file_of_copy(const QString& path);

/// Removes the file of a store that could not be created, and the engine's other files.
void remove_store_files(const QString& path);

/// Takes the lock that excludes a second program from the store at `path`, also if that program uses a link
/// to it. It is released with the object. The lock of a program that was killed has no effect. Fails with
/// `store_locked`, `store_read_only`, `store_full` or `store_unreachable`.
std::unique_ptr<QLockFile> take_store_lock(const QString& path);

}  // namespace verdane
