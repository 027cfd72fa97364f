#include "store/recovery/dated_copies.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "base/run_time_failure.h"
#include "store/engines/file_backup.h"
#include "store/recovery/copy_days.h"
#include "store/recovery/whole_files.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

bool is_sound_copy(const QString& path)
{
    if (QFileInfo(path).size() == 0)
        return false;
    try {
        check_copy(path);
        return true;
    } catch (const run_time_failure& failure) {
        if (failure.kind() == failure_kind::store_damaged)
            return false;
        throw;
    }
}

/// Creates the file, and removes the one that a killed program has left, or a link of that name.
void make_empty_file(const QString& path)
{
    QFile::remove(path);
    QFile file(path);
    if (!QDir().mkpath(QFileInfo(path).absolutePath()) ||
        !file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        throw run_time_failure(failure_kind::store_read_only, QString(path + u": " + file.errorString()));
}

void remove_old_copies(const QString& store, QDate today)
{
    for (const QDate day : days_to_remove(days_of_copies(store), today))
        QFile::remove(path_of_copy(store, day));
}

}  // namespace

bool write_dated_copy(const QString& store, QDate day)
{
    const QString copy = path_of_copy(store, day);
    if (is_sound_copy(copy))
        return false;
    const QString unfinished = folder_of_copies(store) + u"/unfinished"_s;
    make_empty_file(unfinished);
    try {
        back_up(store, unfinished);
        check_copy(unfinished);
        replace_file(unfinished, copy);
    } catch (...) {
        QFile::remove(unfinished);
        throw;
    }
    remove_old_copies(store, day);
    return true;
}

}  // namespace verdane
