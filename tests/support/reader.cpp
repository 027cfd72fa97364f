#include "tests/support/reader.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QStringList>
#include <QUuid>

#include <functional>
#include <utility>

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

void with_connection(const QString& path, const std::function<void(QSqlDatabase&)>& work)
{
    const QString name = QUuid::createUuid().toString();
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s, name);
        database.setDatabaseName(path);
        database.setConnectOptions(u"QSQLITE_BUSY_TIMEOUT=5000"_s);
        if (!database.open())
            qFatal("cannot read the store: %s", qUtf8Printable(database.lastError().text()));
        work(database);
    }
    QSqlDatabase::removeDatabase(name);
}

void run(QSqlQuery& query, const QString& statement)
{
    if (!query.exec(statement))
        qFatal("%s: %s", qUtf8Printable(statement), qUtf8Printable(query.lastError().text()));
}

}  // namespace

reader::reader(QString path) : path_(std::move(path)) {}

std::vector<std::vector<QVariant>> reader::rows(const QString& statement) const
{
    std::vector<std::vector<QVariant>> rows;
    with_connection(path_, [&](QSqlDatabase& database) {
        QSqlQuery query(database);
        run(query, statement);
        while (query.next()) {
            auto& row = rows.emplace_back();
            for (int i = 0; i < query.record().count(); ++i)
                row.push_back(query.value(i));
        }
    });
    return rows;
}

QVariant reader::value(const QString& statement) const
{
    const auto all = rows(statement);
    if (all.empty() || all.front().empty())
        return {};
    return all.front().front();
}

void reader::write(const QString& statement) const
{
    write(QStringList{statement});
}

void reader::write(const QStringList& statements) const
{
    with_connection(path_, [&](QSqlDatabase& database) {
        QSqlQuery query(database);
        for (const QString& statement : statements)
            run(query, statement);
    });
}

}  // namespace verdane::testing
