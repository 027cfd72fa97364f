#include "store/engines/mariadb_engine.h"

#include <QSqlError>
#include <QSqlQuery>

#include <algorithm>

#include "store/engines/mariadb_errors.h"
#include "store/engines/mariadb_session.h"
#include "store/engines/odbc_link.h"
#include "store/engines/sql_text.h"
#include "store/schema.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

/// How long opening waits for the lock of another program, in seconds. The server releases the lock of a
/// killed program a moment later.
constexpr int program_lock_time_out_s = 1;

/// The name of the lock of one program, as an expression.
constexpr QStringView name_of_lock = u"concat('verdane ', md5(lower(database())))";

/// The longest statement, in characters, that inserts a row and returns its identity. The driver runs one of
/// more than 32 KB without reading what it returns, and the connection cannot be used any more.
constexpr qsizetype longest_returning = 32'000;

/// The tables have names in small letters if the server ignores case.
constexpr QStringView case_setting = u"select @@lower_case_table_names";

}  // namespace

bool mariadb_engine::open(soundness_check)
{
    try {
        const bool has_tables = check_source();
        open_for_work();
        return has_tables;
    } catch (const run_time_failure& failure) {
        // Nothing has been written yet.
        if (failure.kind() == failure_kind::source_lost)
            throw run_time_failure(failure_kind::source_silent, failure.details());
        throw;
    }
}

void mariadb_engine::open_for_work()
{
    // The server ends a closed connection a moment later, with its lock.
    run(u"do release_lock(" + name_of_lock + u')');
    close();
    open_link(name_, where_.name, source_time_out_s);
    set_session(source_lock_time_out_s);
    take_lock();
}

bool mariadb_engine::check_source()
{
    set_session(source_opening_lock_time_out_s);
    check_server();
    take_lock();
    read_tables();
    const tables_found which = check_tables(tables_.columns());
    tables_.check_transactions();
    check_missing_tables();
    if (which == tables_found::all) {
        tables_.check_joined_keys();
        check_writable();
    }
    // Each statement that creates a table is committed by itself, so an earlier start may have been ended in
    // between.
    if (which == tables_found::some && (!are_first_tables(tables_.columns()) || holds_rows()))
        refuse_incomplete();
    return which == tables_found::all;
}

void mariadb_engine::check_missing_tables() const
{
    for (const QString& table : missing_tables(tables_.columns())) {
        const QString statement = u"select 1 from " + in_back_quotes(table) + u" limit 0";
        QSqlQuery query(database());
        if (query.exec(statement))
            continue;
        const run_time_failure found = failure(query.lastError(), statement);
        if (found.kind() != failure_kind::source_part)
            throw found;
    }
}

void mariadb_engine::refuse_incomplete() const
{
    throw run_time_failure(failure_kind::source_table,
                           u"%1: %2"_s.arg(where_.name, missing_tables(tables_.columns()).join(u", "_s)));
}

void mariadb_engine::set_session(int lock_time_out_s) const
{
    for (const QString& statement : session_settings(lock_time_out_s))
        run(statement);
}

void mariadb_engine::check_server() const
{
    if (first_value(u"select database()"_s).isEmpty())
        throw run_time_failure(failure_kind::source_database, where_.name);
    if (first_value(case_setting.toString()) == u"0")
        throw run_time_failure(failure_kind::source_case,
                               QString(where_.name + u": lower_case_table_names = 0"));
}

void mariadb_engine::take_lock() const
{
    const QString question = u"select get_lock(%1, %2)"_s.arg(name_of_lock).arg(program_lock_time_out_s);
    if (first_value(question) != u"1")
        throw run_time_failure(failure_kind::store_locked, where_.name);
}

void mariadb_engine::read_tables()
{
    QSqlQuery query(database());
    query.setForwardOnly(true);
    if (!query.exec(mariadb_tables::question()))
        throw failure(query.lastError(), mariadb_tables::question());
    tables_ = mariadb_tables(query);
    if (query.lastError().isValid())
        throw failure(query.lastError(), mariadb_tables::question());
}

bool mariadb_engine::holds_rows() const
{
    const auto has_rows = [this](const table& declared) {
        return declared.fixed_rows == 0 && tables_.contains(declared.name) &&
               first_value(u"select count(*) from " + in_back_quotes(declared.name)) != u"0";
    };
    return std::any_of(schema().begin(), schema().end(), has_rows);
}

void mariadb_engine::check_writable() const
{
    // Opening a source with an account that may only read succeeds.
    for (const QString& statement : statements_that_need_rights())
        run(statement);
    // A server on which every account may only read refuses this statement, which changes nothing.
    run(u"update settings set language = language"_s);
}

bool mariadb_engine::was_created_before(QStringView table) const
{
    return tables_.contains(table);
}

void mariadb_engine::tables_created()
{
    read_tables();
    if (check_tables(tables_.columns()) != tables_found::all)
        refuse_incomplete();
    tables_.check_joined_keys();
    check_writable();
}

QString mariadb_engine::identity_script() const
{
    return tables_.row_column_script();
}

QString mariadb_engine::identity_column(QStringView table) const
{
    return tables_.has_row_column(table) ? mariadb_tables::row_column() : QString();
}

bool mariadb_engine::keeps_order(QStringView table) const
{
    return tables_.keeps_order(table);
}

bool mariadb_engine::has_declared_defaults(QStringView table) const
{
    return tables_.has_declared_defaults(table);
}

QString mariadb_engine::select_with_identity(const QString& statement, const select_statement& shape,
                                             const QString& identity) const
{
    // The server refuses `column, *`.
    return with_row_number(with_qualified_columns(statement, shape), shape, identity);
}

void mariadb_engine::add_comparison(statement_with_values& statement, const QString& column,
                                    const QVariant& value) const
{
    // The texts of a table that was made by someone else may be compared without regard to case, and every
    // number but 0 is a yes.
    if (value.typeId() == QMetaType::QString)
        statement.text += u"CONVERT(" + in_back_quotes(column) + u" USING utf8mb4) COLLATE " +
                          mariadb_tables::collation() + u" <=> ";
    else if (value.typeId() == QMetaType::Bool)
        statement.text += u'(' + in_back_quotes(column) + u" <> 0) <=> ";
    else
        statement.text += in_back_quotes(column) + u" <=> ";
    add_value(statement, value);
}

int mariadb_engine::change_one(const statement_with_values& statement, const statement_with_values& condition,
                               int before, const QString& where)
{
    QString chosen = condition.text;
    if (before > 0) {
        // The server reads the whole table in its order, and counts the rows for which the condition holds: a
        // CASE computes the value of a branch only if its condition holds.
        run(u"set @verdane_equal = 0"_s);
        chosen = u"CASE WHEN %1 THEN @verdane_equal := @verdane_equal + 1 END = %2"_s.arg(
            condition.text, QString::number(before + 1));
    }
    return change({statement.text + u" WHERE " + chosen + u" LIMIT 1", {}}, where);
}

qint64 mariadb_engine::insert(const statement_with_values& statement, const QString& where)
{
    const QString text = statement.text + u" RETURNING " + mariadb_tables::row_column();
    if (text.size() > longest_returning) {
        change(statement, where);
        return first_value(u"select last_insert_id()"_s).toLongLong();
    }
    QSqlQuery query(database());
    query.setForwardOnly(true);
    if (!query.exec(text) || !query.next())
        throw failure(query.lastError(), where + u" [" + text + u']');
    return query.value(0).toLongLong();
}

const commit_statements& mariadb_engine::commits() const
{
    // The server waits for its disk at each commit, so the statements are committed together at the end.
    static const commit_statements statements{
        u"START TRANSACTION"_s, u"START TRANSACTION"_s,  u"COMMIT"_s,
        u"ROLLBACK"_s,          u"SET autocommit = 0"_s, u"SET autocommit = 1"_s};
    return statements;
}

QString mariadb_engine::table_ending(const table& declared) const
{
    return mariadb_tables::ending(declared);
}

QStringList mariadb_engine::index_names() const
{
    return first_values(
        u"select distinct index_name from information_schema.statistics where table_schema = database()"_s);
}

run_time_failure mariadb_engine::failure(const QSqlError& error, const QString& where) const
{
    const int code = native_code(error);
    const QString text = error.databaseText();
    const QString shown = text.isEmpty() ? u"connection lost"_s : text;
    const failure_kind kind = kind_of_mariadb_error(code, text);
    // A server that writes a binary log does not report a full disk; it waits until space is free again.
    const QString hint = kind == failure_kind::source_lost
                             ? u"; the server may wait for room on a full disk: see its log"_s
                             : QString();
    return {kind, QString(where + u": " + shown + u" (" + error.nativeErrorCode() + u')' + hint)};
}

QString mariadb_engine::text_literal(const QByteArray& utf8) const
{
    return u"_utf8mb4 " + hex_literal(utf8);
}

QString mariadb_engine::literal_in_statement(const QString& text) const
{
    // The collation of a literal counts more than that of a column, but without it an index can be used.
    if (!tables_.has_other_collations())
        return odbc_engine::literal_in_statement(text);
    return text_literal(text.toUtf8()) + u" COLLATE " + mariadb_tables::collation();
}

QString mariadb_engine::in_dialect(const QString& part) const
{
    // Whole numbers divided give a whole number on the embedded engine, and a fraction here.
    return QString(part).replace(u"/"_s, u" DIV "_s);
}

}  // namespace verdane
