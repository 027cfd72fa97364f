#include "tests/support/table_filler.h"

#include <QSqlError>
#include <QUuid>

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

void must(bool done, const QSqlError& error)
{
    if (!done)
        qFatal("the store cannot be filled: %s", qUtf8Printable(error.text()));
}

}  // namespace

void in_one_transaction(const QString& path, const std::function<void(QSqlDatabase&)>& work)
{
    const QString name = QUuid::createUuid().toString();
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s, name);
        database.setDatabaseName(path);
        must(database.open(), database.lastError());
        must(database.transaction(), database.lastError());
        work(database);
        must(database.commit(), database.lastError());
    }
    QSqlDatabase::removeDatabase(name);
}

table_filler::table_filler(const QSqlDatabase& database, const QString& table, const QStringList& columns)
    : query_(database)
{
    const QStringList places(columns.size(), u"?"_s);
    must(query_.prepare(
             u"insert into %1 (`%2`) values (%3)"_s.arg(table, columns.join(u"`, `"_s), places.join(u','))),
         query_.lastError());
}

void table_filler::add(const QVariantList& values)
{
    for (int i = 0; i < values.size(); ++i)
        query_.bindValue(i, values.at(i));
    must(query_.exec(), query_.lastError());
}

}  // namespace verdane::testing
