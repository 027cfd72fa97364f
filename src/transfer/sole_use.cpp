#include "transfer/sole_use.h"

#include <sqlite3.h>

#include <memory>

#include "base/run_time_failure.h"

namespace verdane {

namespace {

constexpr int time_out_ms = 1000;

struct closing {
    void operator()(sqlite3* file) const { sqlite3_close(file); }
};

}  // namespace

void need_sole_use(const QString& path)
{
    sqlite3* opened = nullptr;
    const int result = sqlite3_open_v2(path.toUtf8().constData(), &opened, SQLITE_OPEN_READWRITE, nullptr);
    const std::unique_ptr<sqlite3, closing> file(opened);
    if (result != SQLITE_OK)
        return;
    // The log of a damaged file stays.
    sqlite3_db_config(opened, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
    sqlite3_busy_timeout(opened, time_out_ms);
    // In this mode the engine locks the whole file, which it refuses while another connection is open with a
    // write-ahead log, even if that connection neither reads nor writes.
    const int locked =
        sqlite3_exec(opened, "PRAGMA locking_mode=EXCLUSIVE; BEGIN EXCLUSIVE", nullptr, nullptr, nullptr);
    if (locked == SQLITE_BUSY)
        throw run_time_failure(failure_kind::store_locked,
                               QString(path + u": " + QString::fromUtf8(sqlite3_errmsg(opened))));
}

}  // namespace verdane
