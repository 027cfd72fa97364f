#include "store/store_lock.h"

#include "base/run_time_failure.h"

#include <QFileInfo>
#include <QLockFile>
#include <QStorageInfo>
#include <QTemporaryFile>

#include <chrono>

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

/// The lock does not report why it could not be written. If a file can be created and not be written, the
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

std::unique_ptr<QLockFile> take_store_lock(const QString& path)
{
    const QString lock_path = path + u".lock";
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
