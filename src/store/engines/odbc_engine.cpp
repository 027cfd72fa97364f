#include "store/engines/odbc_engine.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QVersionNumber>

#include "store/engines/mariadb_engine.h"
#include "store/engines/mariadb_errors.h"
#include "store/engines/odbc_link.h"
#include "store/engines/sql_text.h"
#include "store/engines/sqlite_odbc_engine.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

/// The oldest server that returns the identity of an inserted row with the insertion.
const QVersionNumber oldest_mariadb(10, 5);

/// The first value of a query, or its error.
struct value_or_error {
    value_or_error(const QString& connection, const QString& question)
    {
        QSqlQuery query(QSqlDatabase::database(connection, false));
        if (query.exec(question) && query.next())
            value = query.value(0).toString();
        else
            error = query.lastError();
    }

    QString value;
    QSqlError error;
};

[[noreturn]] void refuse(const QString& connection, failure_kind kind, const QString& details)
{
    QSqlDatabase::database(connection, false).close();
    QSqlDatabase::removeDatabase(connection);
    throw run_time_failure(kind, details);
}

/// The version of the server; empty if the engine has no such function.
QString version_of_server(const QString& connection, const QString& source)
{
    const value_or_error version(connection, u"select version()"_s);
    if (version.error.isValid()) {
        const int code = native_code(version.error);
        const QString text = version.error.databaseText();
        if (const auto kind = kind_of_unusable_server(code, text))
            refuse(connection, *kind, u"%1: %2 (%3)"_s.arg(source, text).arg(code));
    }
    return version.value;
}

}  // namespace

void odbc_engine::add_value(statement_with_values& statement, const QVariant& value) const
{
    statement.text += literal(value);
}

QString odbc_engine::literal(const QVariant& value) const
{
    if (value.typeId() != QMetaType::QString || value.isNull())
        return literal_of_number(value);
    return literal_of_text(value.toString());
}

QString odbc_engine::literal_of_text(const QString& text) const
{
    return is_plain_text(text) ? QString(u'\'' + text + u'\'') : text_literal(text);
}

QString odbc_engine::literal_in_statement(const QString& text) const
{
    return literal_of_text(text);
}

std::unique_ptr<result_rows> odbc_engine::select(const QString& statement, const QString& where) const
{
    return std::make_unique<odbc_rows>(
        database(), as_sent(statement), texts(),
        [this, where](const QSqlError& error) { return failure(error, where); });
}

int odbc_engine::change(const statement_with_values& statement, const QString& where)
{
    QSqlQuery query(database());
    if (!query.exec(statement.text))
        throw failure(query.lastError(), where + u" [" + statement.text + u']');
    return query.numRowsAffected();
}

QString odbc_engine::as_sent(const QString& statement) const
{
    return rewritten(
        statement, [this](const QString& text) { return literal_in_statement(text); },
        [this](const QString& part) { return in_dialect(part); });
}

source_kind kind_of_source(const QString& server, const QString& sqlite)
{
    if (server.contains(u"MariaDB", Qt::CaseInsensitive))
        return QVersionNumber::fromString(server) < oldest_mariadb ? source_kind::unsupported
                                                                   : source_kind::mariadb;
    return server.isEmpty() && !sqlite.isEmpty() ? source_kind::sqlite : source_kind::unsupported;
}

std::unique_ptr<store_engine> engine_of_source(const QString& name, const store_location& where)
{
    sqlite_odbc_engine::check_before_opening(where.name);
    open_link(name, where.name, source_opening_time_out_s);
    const QString server = version_of_server(name, where.name);
    const QString sqlite =
        server.isEmpty() ? value_or_error(name, u"select sqlite_version()"_s).value : QString();
    switch (kind_of_source(server, sqlite)) {
    case source_kind::mariadb:
        return std::make_unique<mariadb_engine>(name, where);
    case source_kind::sqlite:
        return std::make_unique<sqlite_odbc_engine>(name, where);
    case source_kind::unsupported:
        break;
    }
    refuse(name, failure_kind::source_engine,
           u"%1: %2 (MariaDB %3, SQLite)"_s.arg(where.name, server, oldest_mariadb.toString()));
}

}  // namespace verdane
