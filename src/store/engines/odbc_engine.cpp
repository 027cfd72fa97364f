#include "store/engines/odbc_engine.h"

#include <QSqlError>
#include <QSqlQuery>

#include "store/engines/mariadb_engine.h"
#include "store/engines/odbc_link.h"
#include "store/engines/sql_text.h"
#include "store/engines/sqlite_odbc_engine.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

/// The first value of a query; empty if the engine does not know its function.
QString first_value_or_none(const QString& connection, const QString& question)
{
    QSqlQuery query(QSqlDatabase::database(connection, false));
    return query.exec(question) && query.next() ? query.value(0).toString() : QString();
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
    const QString text = value.toString();
    return is_plain_text(text) ? QString(u'\'' + text + u'\'') : text_literal(text);
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
        statement, [this](const QString& text) { return text_literal(text); },
        [this](const QString& part) { return in_dialect(part); });
}

source_kind kind_of_source(const QString& server, const QString& sqlite)
{
    if (server.contains(u"MariaDB", Qt::CaseInsensitive))
        return source_kind::mariadb;
    return server.isEmpty() && !sqlite.isEmpty() ? source_kind::sqlite : source_kind::unsupported;
}

std::unique_ptr<store_engine> engine_of_source(const QString& name, const store_location& where)
{
    sqlite_odbc_engine::check_before_opening(where.name);
    open_link(name, where.name);
    const QString server = first_value_or_none(name, u"select version()"_s);
    const QString sqlite =
        server.isEmpty() ? first_value_or_none(name, u"select sqlite_version()"_s) : QString();
    switch (kind_of_source(server, sqlite)) {
    case source_kind::mariadb:
        return std::make_unique<mariadb_engine>(name, where);
    case source_kind::sqlite:
        return std::make_unique<sqlite_odbc_engine>(name, where);
    case source_kind::unsupported:
        break;
    }
    QSqlDatabase::database(name, false).close();
    QSqlDatabase::removeDatabase(name);
    throw run_time_failure(failure_kind::source_engine, u"%1: %2"_s.arg(where.name, server));
}

}  // namespace verdane
