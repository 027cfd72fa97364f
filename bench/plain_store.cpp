#include "bench/plain_store.h"

#include <QSqlError>
#include <QUuid>
#include <QVariant>

namespace verdane::bench {

plain_store::plain_store(const QString& path) : name_(QUuid::createUuid().toString())
{
    QSqlDatabase engine = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name_);
    engine.setDatabaseName(path);
    if (!engine.open())
        qFatal("%s", qUtf8Printable(engine.lastError().text()));
    run(QStringLiteral("PRAGMA journal_mode=WAL"));
    run(QStringLiteral("PRAGMA synchronous=FULL"));
    run(QStringLiteral("PRAGMA cache_size=-16384"));
}

plain_store::~plain_store()
{
    QSqlDatabase::database(name_).close();
    QSqlDatabase::removeDatabase(name_);
}

QSqlQuery plain_store::run(const QString& statement, const QVariantList& values) const
{
    QSqlQuery query(QSqlDatabase::database(name_));
    query.setForwardOnly(true);
    query.prepare(statement);
    for (const QVariant& value : values)
        query.addBindValue(value);
    if (!query.exec())
        qFatal("%s: %s", qUtf8Printable(statement), qUtf8Printable(query.lastError().text()));
    return query;
}

}  // namespace verdane::bench
