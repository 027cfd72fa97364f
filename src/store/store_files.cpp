#include "store/store_files.h"

#include "base/run_time_failure.h"
#include "store/recovery/copy_days.h"

#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QStorageInfo>
#include <QTemporaryFile>
#include <QtEndian>

#include <chrono>

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

/// The parts of the file header that SQLite's file format documents, by their offset.
namespace header {
constexpr int size = 100;
constexpr int page_size = 16;
constexpr int write_version = 18;
constexpr int read_version = 19;
constexpr int newest_version = 2;
/// A page of 64 KB does not fit into the two bytes of its field.
constexpr int largest_page_as_written = 1;
constexpr int largest_page = 65536;
}  // namespace header

[[noreturn]] void refuse(const QString& path, QStringView reason)
{
    throw run_time_failure(failure_kind::store_damaged, QString(path + u": " + reason));
}

/// Only opening the file for writing shows reliably whether it can be written: permissions do not, and the
/// engine fails as late as its first checkpoint.
void open_for_check(QFile& file)
{
    if (file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
        return;
    const QString reason = file.fileName() + u": " + file.errorString();
    const bool readable = file.open(QIODevice::ReadOnly);
    throw run_time_failure(readable ? failure_kind::store_read_only : failure_kind::store_unreachable,
                           reason);
}

bool has_content(const QString& path)
{
    return QFileInfo(path).size() > 0;
}

/// The parts of the header of a rollback journal that SQLite's file format documents. The first bytes are
/// zeros until the journal is complete; the file has not been changed then.
namespace journal {
constexpr int size = 28;
constexpr int pages_before = 16;
}  // namespace journal

/// True if a rollback journal can have pages of a file. The journal of a file that is created has none.
bool has_old_pages(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return has_content(path);
    static const QByteArray start = QByteArray::fromHex("d9d505f920a163d7");
    const QByteArray head = file.read(journal::size);
    if (head.isEmpty() || head.startsWith(QByteArray(start.size(), '\0')))
        return false;
    return head.size() < journal::size || !head.startsWith(start) ||
           qFromBigEndian<quint32>(head.constData() + journal::pages_before) > 0;
}

/// When the engine opens an empty file, it deletes the logs and creates a new store.
void check_that_nothing_was_lost(const QString& path, bool is_there)
{
    if (has_old_pages(real_path(path) + u"-journal"))
        refuse(path, is_there ? u"the file is empty, its rollback journal is not"
                              : u"the file is missing, its rollback journal is not");
    if (has_content(real_path(path) + u"-wal"))
        refuse(path, is_there ? u"the file is empty, its write-ahead log is not"
                              : u"the file is missing, its write-ahead log is not");
    if (is_there && !days_of_copies(path).empty())
        refuse(path, u"the file is empty, its copies are not");
}

int page_size_in(const QByteArray& head)
{
    const int written = qFromBigEndian<quint16>(head.constData() + header::page_size);
    return written == header::largest_page_as_written ? header::largest_page : written;
}

bool is_known_version(const QByteArray& head, int offset)
{
    return head[offset] >= 1 && head[offset] <= header::newest_version;
}

/// True if a log may contain pages that are not in the file yet. A crash while they are copied can leave a
/// file of any size, or without a header; the engine then reads those pages from the log.
bool waits_for_recovery(const QString& path)
{
    const QString file = real_path(path);
    return has_content(file + u"-wal") || has_content(file + u"-journal");
}

/// The engine reads the missing part of the last page as zeros, so it would open a file that was cut there.
void check_head(QFile& file, const QString& path)
{
    const QByteArray head = file.read(header::size);
    const bool log_may_repair = waits_for_recovery(path);
    if (!head.startsWith(QByteArray("SQLite format 3", 16)) || head.size() < header::size) {
        if (log_may_repair)
            return;
        refuse(path, u"not a store");
    }
    if (!is_known_version(head, header::write_version) || !is_known_version(head, header::read_version))
        refuse(path, u"an unknown version of the file format");
    const int page = page_size_in(head);
    if (page == 0 || (file.size() % page != 0 && !log_may_repair))
        refuse(path, u"its last page is not complete");
}

/// The lock does not report why it could not be written. If a file can be created but not written, the
/// disk is full, or a quota or a limit on the size of files applies.
bool takes_no_content(const QString& folder)
{
    QTemporaryFile probe(folder + u"/Verdane-XXXXXX");
    return probe.open() && (probe.write("content") < 0 || !probe.flush());
}

bool disk_is_full(const QString& path)
{
    const QString folder = QFileInfo(path).absolutePath();
    const QStorageInfo storage(folder);
    return (storage.isValid() && storage.bytesAvailable() == 0) || takes_no_content(folder);
}

failure_kind kind_of(QLockFile::LockError error, const QString& path)
{
    switch (error) {
    case QLockFile::LockFailedError:
        return failure_kind::store_locked;
    case QLockFile::PermissionError:
        return failure_kind::store_read_only;
    default:
        return disk_is_full(path) ? failure_kind::store_full : failure_kind::store_unreachable;
    }
}

}  // namespace

QString real_path(const QString& path)
{
    // More links than this are a circle.
    constexpr int most_links = 40;
    QFileInfo file(path);
    for (int links = 0; links < most_links && !file.exists() && file.isSymLink(); ++links)
        file.setFile(file.symLinkTarget());
    return file.exists() ? file.canonicalFilePath() : file.filePath();
}

void check_store_files(const QString& path)
{
    QFile file(path);
    const bool is_there = file.exists();
    if (is_there)
        open_for_check(file);
    if (file.size() == 0)
        check_that_nothing_was_lost(path, is_there);
    else
        check_head(file, path);
}

void check_file_of_copy(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::ExistingOnly))
        throw run_time_failure(failure_kind::store_unreachable, QString(path + u": " + file.errorString()));
    check_head(file, path);
}

void remove_store_files(const QString& path)
{
    // The file last: a log without its file means that the file of a store was lost.
    const QString file = real_path(path);
    for (const QStringView suffix : {u"-journal", u"-shm", u"-wal", u""})
        QFile::remove(file + suffix);
}

std::unique_ptr<QLockFile> take_store_lock(const QString& path)
{
    const QString lock_path = real_path(path) + u".lock";
    auto lock = std::make_unique<QLockFile>(lock_path);
    // The program may run for days: a lock is stale if the process that took it has ended, whatever its age.
    lock->setStaleLockTime(std::chrono::milliseconds(0));
    if (lock->tryLock())
        return lock;
    // A lock file with unusable content (cut by a power cut, or written under another host name) is removed
    // unless a process has it open.
    if (lock->error() == QLockFile::LockFailedError && lock->removeStaleLockFile() && lock->tryLock())
        return lock;
    throw run_time_failure(kind_of(lock->error(), path), u"lock file %1"_s.arg(lock_path));
}

}  // namespace verdane
