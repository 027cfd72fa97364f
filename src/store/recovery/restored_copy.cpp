#include "store/recovery/restored_copy.h"

#include <QFileInfo>
#include <QLockFile>

#include <algorithm>

#include "base/language.h"
#include "base/run_time_failure.h"
#include "store/Connection1.h"
#include "store/engines/file_backup.h"
#include "store/recovery/diary_copy.h"
#include "store/recovery/kept_copy.h"
#include "store/recovery/sole_use.h"
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
    if (!open_alone(from, copy) || tables_in_use(from).empty())
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
    Connection1 store;
    try {
        open_alone(store, place);
    } catch (const run_time_failure& failure) {
        if (failure.kind() == failure_kind::store_locked)
            throw;
    }
}

QStringList files_of_engine(const QString& path)
{
    QStringList paths{path + u"-shm"};
    for (const QStringView ending : endings_of_logs)
        paths << path + ending;
    return paths;
}

bool has_log(const QString& path)
{
    return std::any_of(endings_of_logs.begin(), endings_of_logs.end(),
                       [&](QStringView ending) { return QFileInfo(path + ending).size() > 0; });
}

/// The logs are removed before the new file has its name, because the engine would apply them to it. While a
/// log with content is removed, the path has no file, because the old file is not complete without it.
void replace_store(const QString& path, const work_folder& work)
{
    if (QFile::exists(path)) {
        copy_mode(path, work.new_store());
        if (has_log(path))
            replace_file(path, work.read_store());
    }
    remove_files(files_of_engine(path));
    replace_file(work.new_store(), path);
}

/// The old files are kept already.
void put_in_place(const QString& path, const work_folder& work, const QStringList& kept)
{
    try {
        replace_store(path, work);
    } catch (const run_time_failure& failure) {
        throw run_time_failure(
            failure.kind() == failure_kind::store_full ? failure.kind() : failure_kind::store_other,
            failure.details() + u'\n' +
                in_language(u"Les anciens fichiers sont gardés : %1", u"The old files are kept: %1")
                    .arg(kept.join(u", "_s)));
    }
}

}  // namespace

std::optional<restored_files> restore_copy(const store_location& copy, const store_location& place)
{
    if (QFileInfo(place.name).size() > 0)
        finish_log(place);
    // A link stays a link, also if its target is missing.
    const store_location target = store_location::file(real_path(place.name));
    make_folder_of(target.name);
    const auto lock = take_store_lock(target.name);
    const work_folder work(target.name);
    if (!write_new_file(copy, work))
        return std::nullopt;
    const bool is_there = QFile::exists(target.name);
    need_sole_use(target.name);
    const QStringList kept = keep_files(target, u"replaced"_s);
    put_in_place(target.name, work, kept);
    return restored_files{kept, is_there};
}

}  // namespace verdane
