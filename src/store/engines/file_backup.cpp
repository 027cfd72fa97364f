#include "store/engines/file_backup.h"

#include <QFileInfo>
#include <QSqlError>
#include <QUrl>

#include <sqlite3.h>

#include <memory>

#include "store/engines/sqlite.h"
#include "store/store_files.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr int lock_time_out_ms = 5000;
/// How long the check of sole use waits.
constexpr int use_time_out_ms = 1000;

struct closing {
    void operator()(sqlite3* file) const { sqlite3_close(file); }
};

/// A file that is open in SQLite. The database classes of Qt have no backup.
class open_file {
public:
    open_file(const QString& address, int flags) : address_(address)
    {
        sqlite3* opened = nullptr;
        const int result =
            sqlite3_open_v2(address.toUtf8().constData(), &opened, flags | SQLITE_OPEN_URI, nullptr);
        file_.reset(opened);
        need(result);
        sqlite3_busy_timeout(opened, lock_time_out_ms);
    }

    sqlite3* handle() const { return file_.get(); }

    /// Fails unless a call on this file has returned `success`.
    void need(int result, int success = SQLITE_OK) const
    {
        if (result != success)
            throw store_failure({{},
                                 QString::fromUtf8(sqlite3_errmsg(handle())),
                                 QSqlError::StatementError,
                                 QString::number(sqlite3_extended_errcode(handle()))},
                                address_);
    }

    /// The first value of a statement as text.
    QString first_value(const char* statement) const
    {
        sqlite3_stmt* prepared = nullptr;
        need(sqlite3_prepare_v2(handle(), statement, -1, &prepared, nullptr));
        const int result = sqlite3_step(prepared);
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(prepared, 0));
        const QString value = result == SQLITE_ROW ? QString::fromUtf8(text) : QString();
        sqlite3_finalize(prepared);
        need(result, SQLITE_ROW);
        return value;
    }

private:
    QString address_;
    std::unique_ptr<sqlite3, closing> file_;
};

QString address_of(const QString& path)
{
    return QString::fromLatin1(QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath()).toEncoded());
}

}  // namespace

void back_up(const QString& store, const QString& copy)
{
    const open_file from(address_of(store), SQLITE_OPEN_READONLY);
    const open_file to(address_of(copy), SQLITE_OPEN_READWRITE);
    // An incomplete copy is not used, so nothing has to be undone.
    to.first_value("PRAGMA journal_mode=OFF");
    sqlite3_backup* backup = sqlite3_backup_init(to.handle(), "main", from.handle(), "main");
    // All pages in one step, that is, in one reading transaction.
    if (backup != nullptr) {
        sqlite3_backup_step(backup, -1);
        sqlite3_backup_finish(backup);
    }
    to.need(sqlite3_errcode(to.handle()));
}

void check_copy(const QString& path)
{
    check_file_of_copy(path);
    // A copy is never written to. Without this parameter, reading it would create files next to it.
    const open_file copy(address_of(path) + u"?immutable=1", SQLITE_OPEN_READONLY);
    const QString verdict = copy.first_value("PRAGMA integrity_check(1)");
    if (verdict != u"ok")
        throw run_time_failure(failure_kind::store_damaged, QString(path + u": " + verdict));
}

void need_sole_use(const QString& path)
{
    sqlite3* opened = nullptr;
    const int result = sqlite3_open_v2(path.toUtf8().constData(), &opened, SQLITE_OPEN_READWRITE, nullptr);
    const std::unique_ptr<sqlite3, closing> file(opened);
    if (result != SQLITE_OK)
        return;
    // The log of a damaged file stays.
    sqlite3_db_config(opened, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
    sqlite3_busy_timeout(opened, use_time_out_ms);
    // In this mode the engine locks the whole file, which it refuses while another connection is open with a
    // write-ahead log, even if that connection neither reads nor writes.
    const int locked =
        sqlite3_exec(opened, "PRAGMA locking_mode=EXCLUSIVE; BEGIN EXCLUSIVE", nullptr, nullptr, nullptr);
    if (locked == SQLITE_BUSY)
        throw run_time_failure(failure_kind::store_locked,
                               QString(path + u": " + QString::fromUtf8(sqlite3_errmsg(opened))));
    // The engine has created an empty log, and removes it when it closes the file.
    if (locked == SQLITE_OK && QFileInfo(real_path(path) + u"-wal").size() == 0)
        sqlite3_db_config(opened, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 0, nullptr);
}

}  // namespace verdane
