#include "bench/plain_store.h"

#include <QSqlError>
#include <QUuid>
#include <QVariant>

namespace verdane::bench {

using namespace Qt::StringLiterals;

plain_store::plain_store(const QString& path) : name_(QUuid::createUuid().toString())
{
    QSqlDatabase engine = QSqlDatabase::addDatabase(u"QSQLITE"_s, name_);
    engine.setDatabaseName(path);
    if (!engine.open())
        qFatal("%s", qUtf8Printable(engine.lastError().text()));
    run(u"PRAGMA journal_mode=WAL"_s);
    run(u"PRAGMA synchronous=FULL"_s);
    run(u"PRAGMA cache_size=-16384"_s);
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
