#include "tests/support/memory_database.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QUuid>

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void end(const QSqlQuery& query)
{
    qFatal("%s: %s", qUtf8Printable(query.lastQuery()), qUtf8Printable(query.lastError().text()));
}

}  // namespace

memory_database::memory_database() : name_(QUuid::createUuid().toString())
{
    QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s, name_);
    database.setDatabaseName(u":memory:"_s);
    database.open();
}

memory_database::~memory_database()
{
    QSqlDatabase::removeDatabase(name_);
}

QSqlQuery memory_database::prepared(const QString& statement) const
{
    QSqlQuery query(QSqlDatabase::database(name_));
    if (!query.prepare(statement))
        end(query);
    return query;
}

void memory_database::run(QSqlQuery& query)
{
    if (!query.exec())
        end(query);
}

void memory_database::run(const QString& statement) const
{
    QSqlQuery query = prepared(statement);
    run(query);
}

}  // namespace verdane::testing
