#include "store/recovery/restored_copy.h"

#include <QDir>
#include <QFileInfo>
#include <QLockFile>

#include "base/run_time_failure.h"
#include "store/Connection1.h"
#include "store/engines/file_backup.h"
#include "store/recovery/diary_copy.h"
#include "store/recovery/kept_copy.h"
#include "store/recovery/whole_files.h"
#include "store/recovery/work_folder.h"
#include "store/store_files.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

/// Writes what `copy` has into a new file. False if `copy` has no rows.
bool write_rows(const store_location& copy, const QString& path)
{
    Connection1 from;
    if (!from.OpenExisting(copy) || tables_in_use(from).empty())
        return false;
    write_closed_copy(from, path);
    return true;
}

/// Writes what `copy` has into a new file. False if `copy` has no rows. A medium that is read-only needs a
/// copy of the copy: opening a store takes its lock and may write its log into its file.
bool write_new_file(const store_location& copy, const work_folder& work)
{
    try {
        return write_rows(copy, work.new_store());
    } catch (const run_time_failure& failure) {
        if (failure.kind() != failure_kind::store_read_only)
            throw;
    }
    copy_store_files(copy.name, work.read_store());
    return write_rows(store_location::file(work.read_store()), work.new_store());
}

/// Opening and closing a store copies its write-ahead log into its file. A damaged file is not changed.
void finish_log(const store_location& place)
{
    try {
        Connection1().OpenExisting(place);
    } catch (const run_time_failure& failure) {
        if (failure.kind() == failure_kind::store_locked)
            throw;
    }
}

/// Copies the file of a place, and the logs that have content, to the folder of the copies. Returns the
/// paths, that of the file first.
QStringList keep_files(const store_location& place)
{
    const QString kept = free_copy_path(place, u"replaced"_s);
    QStringList paths;
    const auto keep = [&](QStringView ending) {
        copy_whole_file(place.name + ending, kept + ending);
        paths.prepend(kept + ending);
    };
    for (const QStringView ending : endings_of_logs) {
        if (QFileInfo(place.name + ending).size() > 0)
            keep(ending);
    }
    if (QFile::exists(place.name))
        keep({});
    return paths;
}

/// The logs are removed first, because the engine would apply them to the new file.
void put_in_place(const QString& file, const QString& path)
{
    for (const QStringView ending : endings_of_logs)
        QFile::remove(path + ending);
    QFile::remove(path + u"-shm");
    replace_file(file, path);
}

/// A link stays a link, also if its target is missing.
store_location target_of(const store_location& place)
{
    const QFileInfo file(place.name);
    if (file.exists())
        return store_location::file(file.canonicalFilePath());
    return file.isSymLink() ? store_location::file(file.symLinkTarget()) : place;
}

}  // namespace

std::optional<restored_files> restore_copy(const store_location& copy, const store_location& place)
{
    if (QFileInfo(place.name).size() > 0)
        finish_log(place);
    if (!QDir().mkpath(QFileInfo(place.name).absolutePath()))
        throw run_time_failure(failure_kind::store_read_only, place.name);
    const auto lock = take_store_lock(place.name);
    const store_location target = target_of(place);
    const auto lock_of_target =
        QFileInfo(place.name).isSymLink() ? take_store_lock(target.name) : std::unique_ptr<QLockFile>();
    const work_folder work(target.name);
    if (!write_new_file(copy, work))
        return std::nullopt;
    const bool is_there = QFile::exists(target.name);
    need_sole_use(target.name);
    const QStringList kept = keep_files(target);
    put_in_place(work.new_store(), target.name);
    return restored_files{kept, is_there};
}

}  // namespace verdane
