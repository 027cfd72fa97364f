#include "store/recovery/work_folder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QRegularExpression>

#include <utility>

#include "base/run_time_failure.h"
#include "store/recovery/whole_files.h"
#include "store/store_files.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr auto every_entry = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;

QString start_of_name(const QString& path)
{
    return path + u".unfinished-";
}

/// Its lock file has the ending `.lock`.
QString lock_in(const QString& folder)
{
    return folder + u"/work";
}

/// A link is removed itself.
void remove_named(const QString& folder, const QRegularExpression& names)
{
    for (const QFileInfo& entry : QDir(folder).entryInfoList(every_entry)) {
        if (names.match(entry.fileName()).hasMatch() && (entry.isSymLink() || !entry.isDir()))
            QFile::remove(entry.absoluteFilePath());
    }
}

/// Removes the folder and its lock unless it has files of somebody else.
void remove_work(const QString& folder, std::unique_ptr<QLockFile> lock)
{
    static const QRegularExpression store(
        u"^(?:store|source)\\.db(?:-journal|-wal|-shm|\\.lock)?(?:\\.part)?$"_s);
    static const QRegularExpression tables(u"^[A-Za-z0-9_]+\\.csv(?:\\.part)?$"_s);
    remove_named(folder, store);
    const QString files = folder + u"/files";
    if (!QFileInfo(files).isSymLink()) {
        remove_named(files, tables);
        QDir().rmdir(files);
    }
    lock.reset();
    QDir().rmdir(folder);
}

/// Null if a program uses the folder, or if it is not a folder that `work_folder` has made.
std::unique_ptr<QLockFile> lock_of_left_folder(const QString& folder)
{
    if (!QFileInfo(lock_in(folder) + u".lock").isFile())
        return nullptr;
    try {
        return take_store_lock(lock_in(folder));
    } catch (const run_time_failure&) {
        return nullptr;
    }
}

}  // namespace

work_folder::work_folder(const QString& path)
{
    make_folder_of(path);
    remove_unfinished(path);
    // Another run removes the folder if it finds it before the lock is in it.
    constexpr int most_attempts = 10;
    for (int attempt = 1; lock_ == nullptr; ++attempt) {
        folder_ = make_unique_folder(start_of_name(path));
        lock_ = take_lock(attempt == most_attempts);
    }
}

std::unique_ptr<QLockFile> work_folder::take_lock(bool is_last_attempt) const
{
    try {
        return take_store_lock(lock_in(folder_));
    } catch (const run_time_failure&) {
        if (!QFileInfo::exists(folder_) && !is_last_attempt)
            return nullptr;
        QFile::remove(lock_in(folder_) + u".lock");
        QDir().rmdir(folder_);
        throw;
    }
}

work_folder::~work_folder()
{
    remove_work(folder_, std::move(lock_));
}

void remove_unfinished(const QString& path)
{
    static const QRegularExpression random(u"^[A-Za-z0-9]{6}$"_s);
    const QString start = start_of_name(QFileInfo(path).fileName());
    const QDir parent(QFileInfo(path).absolutePath());
    for (const QFileInfo& entry : parent.entryInfoList(QDir::Dirs | QDir::Hidden | QDir::NoSymLinks)) {
        const QString name = entry.fileName();
        if (!name.startsWith(start) || !random.match(name.sliced(start.size())).hasMatch())
            continue;
        // A program that was killed before it took its lock has left an empty folder.
        if (QDir().rmdir(entry.absoluteFilePath()))
            continue;
        if (auto lock = lock_of_left_folder(entry.absoluteFilePath()))
            remove_work(entry.absoluteFilePath(), std::move(lock));
    }
}

}  // namespace verdane
