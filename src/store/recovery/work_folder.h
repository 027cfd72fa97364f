#pragma once

#include <QString>

#include <memory>

class QLockFile;

namespace verdane {

/// A new folder next to a path, on the same file system, for files until they are complete. Only this user
/// can open it. Its name is `PATH.unfinished-XXXXXX`, with six random characters, so it is never a folder or
/// a link that existed before. A lock in it excludes other programs until the folder is removed with the
/// object.
///
/// Only files with the names below, and the tables of `files`, are removed; the folder stays if it has
/// others.
class work_folder {
public:
    /// Makes the folder, and the folder of `path`; calls `remove_unfinished` first. Fails with `store_full`,
    /// `store_read_only` or `store_unreachable`.
    explicit work_folder(const QString& path);
    ~work_folder();
    work_folder(const work_folder&) = delete;
    work_folder& operator=(const work_folder&) = delete;

    /// Paths that do not exist yet, for a new store, for the copy of a store that is read, and for a folder
    /// with a CSV file for each table.
    QString new_store() const { return folder_ + u"/store.db"; }
    QString read_store() const { return folder_ + u"/source.db"; }
    QString files() const { return folder_ + u"/files"; }

private:
    /// Null if another run has removed the folder.
    std::unique_ptr<QLockFile> take_lock(bool is_last_attempt) const;

    QString folder_;
    std::unique_ptr<QLockFile> lock_;
};

/// Removes the folders that programs which were killed have left next to a path. The folder of a program that
/// still runs, a link, and a folder without the lock file of a program stay.
void remove_unfinished(const QString& path);

}  // namespace verdane
