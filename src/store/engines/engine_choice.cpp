#include "store/engines/engine_choice.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QVersionNumber>

#include "store/engines/embedded_engine.h"
#include "store/engines/mariadb_engine.h"
#include "store/engines/mariadb_errors.h"
#include "store/engines/odbc_link.h"
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
        return std::make_unique<sqlite_odbc_engine>(name, where, sqlite);
    case source_kind::unsupported:
        break;
    }
    refuse(name, failure_kind::source_engine,
           u"%1: %2 (MariaDB %3, SQLite)"_s.arg(where.name, server, oldest_mariadb.toString()));
}

std::unique_ptr<store_engine> make_engine(const QString& name, const store_location& where,
                                          lock_wait& waiting)
{
    if (where.where == store_location::place::source)
        return engine_of_source(name, where);
    return std::make_unique<embedded_engine>(name, where, waiting);
}

}  // namespace verdane
