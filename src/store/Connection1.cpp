#include "store/Connection1.h"

#include "store/engines/sqlite.h"
#include "store/fresh_store.h"
#include "store/prepared_statements.h"
#include "store/schema.h"
#include "store/store_files.h"
#include "store/store_lock.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSqlQuery>
#include <QStandardPaths>
#include <QUuid>

#include <sqlite3.h>

#include <algorithm>

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

QString answer(const QSqlDatabase& database, const QString& question)
{
    QSqlQuery query(database);
    query.setForwardOnly(true);
    if (!query.exec(question) || !query.next())
        throw store_failure(query.lastError(), question);
    return query.value(0).toString();
}

/// True if a file has the name of the folder or of one above it.
bool file_in_the_way(const QString& folder)
{
    QFileInfo nearest(folder);
    while (!nearest.exists() && !nearest.isRoot())
        nearest.setFile(nearest.absolutePath());
    return nearest.exists() && !nearest.isDir();
}

void make_folder(const QString& path)
{
    const QString folder = QFileInfo(path).absolutePath();
    if (!QDir().mkpath(folder))
        throw run_time_failure(file_in_the_way(folder) ? failure_kind::store_unreachable
                                                       : failure_kind::store_read_only,
                               u"the folder %1 cannot be made"_s.arg(folder));
}

void run(const QSqlDatabase& database, const QString& statement)
{
    QSqlQuery query(database);
    if (!query.exec(statement))
        throw store_failure(query.lastError(), statement);
}

/// Fails with `store_locked` while another program writes. Takes the write lock, which changes nothing.
void check_no_other_writer(const QSqlDatabase& database)
{
    run(database, u"BEGIN IMMEDIATE"_s);
    run(database, u"ROLLBACK"_s);
}

/// Sets whether closing the connection copies the write-ahead log into the file and removes the log.
void copy_log_on_close(const QSqlDatabase& database, bool copy)
{
    sqlite3_db_config(engine_handle(database), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, copy ? 0 : 1, nullptr);
}

/// In any other mode, the change to the write-ahead log writes to the file.
bool uses_write_ahead_log(const QSqlDatabase& database)
{
    return answer(database, u"PRAGMA journal_mode"_s) == u"wal";
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

Connection1::Connection1()
    : name_(QUuid::createUuid().toString(QUuid::WithoutBraces)),
      prepared_(std::make_unique<prepared_statements>()),
      waiting_(std::make_unique<lock_wait>())
{
}

Connection1::~Connection1()
{
    Close();
}

QString Connection1::connection_string()
{
    return u"Provider=MSDASQL.1;Persist Security Info=False;Data Source=Verdbase;Mode=ReadWrite;"_s;
}

QString Connection1::default_path()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + u"/Verdbase.db";
}

void Connection1::Open(const QString& path, soundness_check check)
{
    if (is_open())
        throw run_time_failure(failure_kind::misuse, QString(path_ + u": the connection is open already"));
    make_folder(path);
    lock_ = take_store_lock(path);
    path_ = path;
    known_sound_ = false;
    bool created = false;
    try {
        check_store_files(path);
        created = !QFile::exists(path);
        open_engine(check);
    } catch (...) {
        Close();
        // A new file without tables is removed again.
        if (created)
            remove_store_files(path);
        throw;
    }
}

void Connection1::open_engine(soundness_check check)
{
    {
        QSqlDatabase engine = QSqlDatabase::addDatabase(u"QSQLITE"_s, name_);
        engine.setDatabaseName(path_);
        if (!engine.open())
            throw store_failure(engine.lastError(), path_);
    }
    const lock_wait::limit wait(*waiting_, opening_time_out_s);
    waiting_->attach(engine_handle(database()));
    // A damaged file is not changed.
    copy_log_on_close(database(), false);
    if (check == soundness_check::while_opening || database().tables().isEmpty() ||
        !uses_write_ahead_log(database()))
        check_whole_file();
    check_no_other_writer(database());
    const bool is_complete = has_store(database());
    // With a write-ahead log the reports can read while the program writes.
    answer(database(), u"PRAGMA journal_mode=WAL"_s);
    run(database(), u"PRAGMA synchronous=FULL"_s);
    run(database(), u"PRAGMA cache_size=-%1"_s.arg(kept_pages_kb));
    if (!is_complete)
        create_tables(*this);
}

void Connection1::check_soundness() const
{
    const lock_wait::limit wait(*waiting_, lock_wait::default_time_out_s);
    check_whole_file();
}

void Connection1::check_whole_file() const
{
    // The short form of this check does not compare the indexes with their tables.
    const QString verdict = answer(database(), u"PRAGMA integrity_check(1)"_s);
    if (verdict != u"ok")
        throw run_time_failure(failure_kind::store_damaged, QString(path_ + u": " + verdict));
    known_sound_ = true;
    copy_log_on_close(database(), true);
}

void Connection1::need_soundness() const
{
    if (!known_sound_)
        check_soundness();
}

void Connection1::Close()
{
    prepared_->forget();
    if (QSqlDatabase::contains(name_)) {
        database().close();
        QSqlDatabase::removeDatabase(name_);
    }
    lock_.reset();
}

bool Connection1::is_open() const
{
    return QSqlDatabase::contains(name_) && database().isOpen();
}

void Connection1::Execute(const QString& statement)
{
    if (!is_open())
        throw run_time_failure(failure_kind::misuse, QString(statement + u": the connection is closed"));
    need_soundness();
    const lock_wait::limit wait(*waiting_, lock_wait::default_time_out_s);
    run(database(), statement);
}

QSqlDatabase Connection1::database() const
{
    return QSqlDatabase::database(name_, false);
}

QString quoted(const QString& text)
{
    QString inside = text;
    inside.replace(u'\'', u"''"_s);
    return u'\'' + inside + u'\'';
}

}  // namespace verdane
