#include "tests/support/reader.h"

#include <QDeadlineTimer>
#include <QStringList>
#include <QThread>

#include <chrono>

#include "tests/support/outside_connection.h"
#include "tests/support/server_copy.h"
#include "tests/support/server_tables.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

/// The problems that `check table` reports. Its result has the table, the operation, the kind and the text.
QString damage_on_server(const outside_connection& server)
{
    QStringList problems;
    for (const QString& table : tables_of(server)) {
        QSqlQuery query = server.run_unchanged(u"check table `%1` extended"_s.arg(table));
        for (const auto& row : all_rows(query)) {
            if (row[3] != u"OK"_s)
                problems << table + u": " + row[3].toString();
        }
    }
    return problems.join(u'\n');
}

}  // namespace

std::vector<std::vector<QVariant>> reader::rows(const QString& statement) const
{
    const outside_connection connection(store_);
    if (connection.is_server())
        return rows_of_server(connection, statement);
    QSqlQuery query = connection.run(statement);
    return all_rows(query);
}

QVariant reader::value(const QString& statement) const
{
    const auto all = rows(statement);
    if (all.empty() || all.front().empty())
        return {};
    return all.front().front();
}

QString reader::damage() const
{
    const outside_connection connection(store_);
    if (connection.is_server())
        return damage_on_server(connection);
    const QString verdict = text(u"pragma integrity_check"_s);
    return verdict == u"ok" ? QString() : verdict;
}

void reader::wait_until_unused() const
{
    const outside_connection connection(store_);
    if (!connection.is_server())
        return;
    const QString others = u"select count(*) from information_schema.processlist where db = database() and "
                           "id <> connection_id()"_s;
    QDeadlineTimer limit(std::chrono::seconds(10));
    while (true) {
        QSqlQuery query = connection.run_unchanged(others);
        if (all_rows(query)[0][0].toInt() == 0)
            return;
        if (limit.hasExpired())
            qFatal("the server keeps the connection of a program that has ended");
        QThread::msleep(5);
    }
}

void reader::write(const QString& statement) const
{
    write(QStringList{statement});
}

void reader::write(const QStringList& statements) const
{
    const outside_connection connection(store_);
    for (const QString& statement : statements)
        connection.run(statement);
}

}  // namespace verdane::testing
