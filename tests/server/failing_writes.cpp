#include "tests/server/failing_writes.h"

#include <QtGlobal>

#include <cerrno>
#include <sqlite3.h>
#include <sys/resource.h>
#include <sys/types.h>

namespace verdane::testing {

namespace {

int error_of_writes = 0;

ssize_t failing_write(int, const void*, size_t)
{
    errno = error_of_writes;
    return -1;
}

ssize_t failing_write_at(int, const void*, size_t, off_t)
{
    errno = error_of_writes;
    return -1;
}

}  // namespace

void fail_writes(int error)
{
    error_of_writes = error;
    sqlite3_vfs* files = sqlite3_vfs_find(nullptr);
    const auto replace = [files](const char* name, auto* function) {
        files->xSetSystemCall(files, name, reinterpret_cast<sqlite3_syscall_ptr>(function));
    };
    // The engine uses one of them; the others have no effect.
    replace("write", failing_write);
    replace("pwrite", failing_write_at);
    replace("pwrite64", failing_write_at);
}

void limit_files_to_nothing()
{
    rlimit limit{};
    if (getrlimit(RLIMIT_FSIZE, &limit) != 0)
        qFatal("no limit on the size of files");
    limit.rlim_cur = 0;
    if (setrlimit(RLIMIT_FSIZE, &limit) != 0)
        qFatal("cannot limit the size of files");
}

}  // namespace verdane::testing
