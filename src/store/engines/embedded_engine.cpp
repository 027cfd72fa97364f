#include "store/engines/embedded_engine.h"

#include <QFile>
#include <QLockFile>
#include <QSqlError>
#include <QSqlQuery>

#include <sqlite3.h>

#include <algorithm>
#include <utility>

#include "store/engines/sqlite.h"
#include "store/engines/sqlite_rows.h"
#include "store/engines/stored_text.h"
#include "store/lock_wait.h"
#include "store/recovery/whole_files.h"
#include "store/schema.h"
#include "store/store_files.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

/// How long opening waits for another program that has locked the file, in seconds. Short, because no window
/// is open yet that could show the reason.
constexpr int opening_time_out_s = 1;

/// How much of the file the engine may keep in memory. A full diary has some 4 MB, which the statistics read
/// many times; the engine's default is 2 MB.
constexpr int kept_pages_kb = 16 * 1024;

/// Sets whether closing the connection copies the write-ahead log into the file and removes the log.
void copy_log_on_close(const QSqlDatabase& database, bool copy)
{
    sqlite3_db_config(engine_handle(database), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, copy ? 0 : 1, nullptr);
}

/// True if the file has at least one table of the store, false if it has no table. Fails with `store_damaged`
/// if it has other tables only, which belong to another program.
bool has_store(const QSqlDatabase& database)
{
    const QStringList names = database.tables();
    const bool known = std::any_of(names.begin(), names.end(),
                                   [](const QString& name) { return find_table(name) != nullptr; });
    if (!known && !names.isEmpty())
        throw run_time_failure(failure_kind::store_damaged,
                               QString(database.databaseName() + u": another program's tables"));
    return known;
}

}  // namespace

embedded_engine::embedded_engine(QString name, store_location where, lock_wait& waiting)
    : store_engine(std::move(name), std::move(where)), waiting_(waiting)
{
}

embedded_engine::~embedded_engine()
{
    embedded_engine::close();
}

bool embedded_engine::open(soundness_check check)
{
    make_folder_of(real_path(where_.name));
    lock_ = take_store_lock(where_.name);
    check_store_files(where_.name);
    created_ = !QFile::exists(where_.name);
    return open_file(check);
}

bool embedded_engine::open_file(soundness_check check)
{
    {
        QSqlDatabase engine = QSqlDatabase::addDatabase(u"QSQLITE"_s, name_);
        engine.setDatabaseName(where_.name);
        if (!engine.open())
            throw failure(engine.lastError(), where_.name);
    }
    const lock_wait::limit wait(waiting_, opening_time_out_s);
    waiting_.attach(engine_handle(database()));
    // A damaged file is not changed.
    copy_log_on_close(database(), false);
    // In any other journal mode, the change to the write-ahead log writes to the file.
    if (check == soundness_check::while_opening || database().tables().isEmpty() ||
        first_value(u"PRAGMA journal_mode"_s) != u"wal")
        check_whole_file();
    // Fails with `store_locked` while another program writes. Takes the write lock, which changes nothing.
    run(commits().begin_locked);
    run(commits().undo);
    const bool has_tables = has_store(database());
    // With a write-ahead log the reports can read while the program writes.
    first_value(u"PRAGMA journal_mode=WAL"_s);
    run(commits().restore);
    run(u"PRAGMA cache_size=-%1"_s.arg(kept_pages_kb));
    return has_tables;
}

void embedded_engine::close_file()
{
    // Prepared statements keep the connection open.
    prepared_.forget();
    store_engine::close();
}

void embedded_engine::close()
{
    close_file();
    lock_.reset();
}

void embedded_engine::abandon()
{
    close_file();
    // Without the lock, the file could be that of another program.
    if (std::exchange(created_, false))
        remove_store_files(where_.name);
    lock_.reset();
}

void embedded_engine::check_soundness()
{
    const lock_wait::limit wait(waiting_, lock_wait::default_time_out_s);
    check_whole_file();
}

void embedded_engine::check_whole_file()
{
    // The short form of this check does not compare the indexes with their tables.
    const QString verdict = first_value(u"PRAGMA integrity_check(1)"_s);
    if (verdict != u"ok")
        throw run_time_failure(failure_kind::store_damaged, QString(where_.name + u": " + verdict));
    take_as_sound();
}

void embedded_engine::take_as_sound()
{
    known_sound_ = true;
    copy_log_on_close(database(), true);
}

QStringList embedded_engine::damaged_indexes()
{
    const QStringList names = store_engine::damaged_indexes();
    if (names.isEmpty())
        take_as_sound();
    return names;
}

void embedded_engine::need_soundness()
{
    if (!known_sound_)
        check_soundness();
}

QString embedded_engine::identity_column(QStringView) const
{
    return u"rowid"_s;
}

void embedded_engine::add_value(statement_with_values& statement, const QVariant& value) const
{
    if (!needs_bytes(value))
        return statement.add(value);
    statement.text += u"CAST(";
    statement.add(value.toByteArray());
    statement.text += u" AS TEXT)";
}

std::unique_ptr<result_rows> embedded_engine::select(const QString& statement, const QString& where) const
{
    return std::make_unique<sqlite_rows>(
        database(), statement, [this, where](const QSqlError& error) { return failure(error, where); });
}

int embedded_engine::change(const statement_with_values& statement, const QString& where)
{
    return prepared_.run(database(), statement, where,
                         [](const QSqlQuery& query) { return query.numRowsAffected(); });
}

qint64 embedded_engine::insert(const statement_with_values& statement, const QString& where)
{
    return prepared_.run(database(), statement, where,
                         [](const QSqlQuery& query) { return query.lastInsertId().toLongLong(); });
}

const commit_statements& embedded_engine::commits() const
{
    return sqlite_commits();
}

run_time_failure embedded_engine::failure(const QSqlError& error, const QString& where) const
{
    return store_failure(error, where);
}

}  // namespace verdane
