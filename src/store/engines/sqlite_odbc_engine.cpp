#include "store/engines/sqlite_odbc_engine.h"

#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QSqlError>
#include <QSqlQuery>
#include <QVersionNumber>

#include <utility>

#include "store/engines/odbc_link.h"
#include "store/engines/registered_source.h"
#include "store/engines/sql_text.h"
#include "store/engines/sqlite.h"
#include "store/store_files.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

/// How much of the file the engine may keep in memory.
constexpr int kept_pages_kb = 16 * 1024;

/// How long a statement waits for the lock of another program, in seconds. Then the driver runs it once more,
/// so it fails after twice that time. The program shows nothing meanwhile.
constexpr int lock_time_out_s = 10;

/// The documented result code of the engine.
constexpr int input_output_error = 10;

/// The oldest library that returns the identity of an inserted row with the insertion. A driver contains a
/// library of its own on some systems.
const QVersionNumber oldest_with_returning(3, 35);

/// The driver returns rows only of a statement that begins with one of the words of a query. This table,
/// which the insertion does not use, makes it begin with such a word.
constexpr QStringView beginning_of_query = u"WITH unused AS (SELECT 1) ";

}  // namespace

sqlite_odbc_engine::sqlite_odbc_engine(QString name, store_location where, const QString& version)
    : odbc_engine(std::move(name), std::move(where)),
      returns_new_rows_(QVersionNumber::fromString(version) >= oldest_with_returning)
{
}

sqlite_odbc_engine::~sqlite_odbc_engine()
{
    sqlite_odbc_engine::close();
}

void sqlite_odbc_engine::check_before_opening(const QString& source)
{
    const QString path = setting_of_source(source, u"Database"_s);
    const bool is_for_sqlite =
        setting_of_source(source, u"Driver"_s).contains(u"sqlite", Qt::CaseInsensitive);
    // A driver can have any name. A missing or empty file is checked whatever the name is.
    const bool may_lose_log = QDir::isAbsolutePath(path) && QFileInfo(path).size() == 0;
    if ((is_for_sqlite && !path.isEmpty()) || may_lose_log)
        check_store_files(path);
}

bool sqlite_odbc_engine::open(soundness_check check)
{
    path_ = path_of_file();
    lock_ = take_store_lock(path_);
    check_closed_file();
    created_ = QFileInfo(path_).size() == 0;
    first_value(u"PRAGMA busy_timeout=%1"_s.arg(lock_time_out_s * 1000));
    if (check == soundness_check::while_opening || created_ ||
        first_value(u"PRAGMA journal_mode"_s) != u"wal")
        check_soundness();
    const bool has_tables = check_content();
    first_value(u"PRAGMA journal_mode=WAL"_s);
    run(commits().restore);
    run(u"PRAGMA cache_size=-%1"_s.arg(kept_pages_kb));
    return has_tables;
}

void sqlite_odbc_engine::check_closed_file()
{
    QSqlDatabase connection = database();
    connection.close();
    check_store_files(path_);
    if (!connection.open())
        throw failure(connection.lastError(), where_.name);
}

QString sqlite_odbc_engine::path_of_file() const
{
    QSqlQuery query(database());
    const QString question = u"PRAGMA database_list"_s;
    if (!query.exec(question) || !query.next())
        throw failure(query.lastError(), question);
    const QString path = query.value(2).toString();
    if (path.isEmpty())
        throw run_time_failure(failure_kind::source_database, where_.name);
    return path;
}

bool sqlite_odbc_engine::check_content()
{
    QSqlQuery query(database());
    query.setForwardOnly(true);
    const QString question = sqlite_tables::question();
    if (!query.exec(question))
        throw failure(query.lastError(), question);
    tables_ = sqlite_tables(query);
    if (query.lastError().isValid())
        throw failure(query.lastError(), question);
    const tables_found which = check_tables(tables_.columns());
    tables_.check_row_numbers();
    if (which == tables_found::some)
        throw run_time_failure(failure_kind::source_table,
                               u"%1: %2"_s.arg(where_.name, missing_tables(tables_.columns()).join(u", "_s)));
    return which == tables_found::all;
}

void sqlite_odbc_engine::close()
{
    store_engine::close();
    lock_.reset();
}

void sqlite_odbc_engine::abandon()
{
    store_engine::close();
    // Without the lock, the file could be that of another program.
    if (std::exchange(created_, false))
        remove_store_files(path_);
    lock_.reset();
}

void sqlite_odbc_engine::check_soundness()
{
    const QString verdict = first_value(u"PRAGMA integrity_check(1)"_s);
    if (verdict != u"ok")
        throw run_time_failure(failure_kind::store_damaged, QString(path_ + u": " + verdict));
    known_sound_ = true;
}

void sqlite_odbc_engine::need_soundness()
{
    if (!known_sound_)
        check_soundness();
}

QString sqlite_odbc_engine::identity_column(QStringView) const
{
    return u"rowid"_s;
}

bool sqlite_odbc_engine::has_declared_defaults(QStringView table) const
{
    return tables_.has_declared_defaults(table);
}

qint64 sqlite_odbc_engine::insert(const statement_with_values& statement, const QString& where)
{
    if (!returns_new_rows_) {
        change(statement, where);
        return last_identity();
    }
    const QString text = beginning_of_query + statement.text + u" RETURNING rowid";
    // Not a forward-only query, of which the driver would commit the row only when the query ends, and would
    // not report an error of that commit.
    QSqlQuery query(database());
    if (!query.exec(text))
        throw failure(query.lastError(), where + u" [" + text + u']');
    if (query.next())
        return query.value(0).toLongLong();
    if (query.lastError().isValid())
        throw failure(query.lastError(), where + u" [" + text + u']');
    // Older drivers return no rows of such a statement, either.
    return last_identity();
}

qint64 sqlite_odbc_engine::last_identity() const
{
    return first_value(u"select last_insert_rowid()"_s).toLongLong();
}

const commit_statements& sqlite_odbc_engine::commits() const
{
    return sqlite_commits();
}

run_time_failure sqlite_odbc_engine::failure(const QSqlError& error, const QString& where) const
{
    const run_time_failure known = store_failure(error, where);
    // The driver does not report which operation on the file failed: most often a write, of an open file.
    if (native_code(error) == input_output_error)
        return {failure_kind::store_other, known.details()};
    return known;
}

QString sqlite_odbc_engine::text_literal(const QByteArray& utf8) const
{
    return u"CAST(" + hex_literal(utf8) + u" AS TEXT)";
}

}  // namespace verdane
