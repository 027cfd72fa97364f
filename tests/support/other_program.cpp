#include "tests/support/other_program.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QUuid>

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

void run(const QString& connection, const QString& statement)
{
    QSqlQuery query(QSqlDatabase::database(connection));
    if (!query.exec(statement))
        qFatal("%s: %s", qUtf8Printable(statement), qUtf8Printable(query.lastError().text()));
}

}  // namespace

other_program::other_program(const QString& store_path, const QString& lock)
    : name_(QUuid::createUuid().toString())
{
    QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s, name_);
    database.setDatabaseName(store_path);
    if (!database.open())
        qFatal("cannot open %s", qUtf8Printable(store_path));
    run(name_, lock);
}

other_program::~other_program()
{
    release();
}

void other_program::release()
{
    if (!QSqlDatabase::contains(name_))
        return;
    run(name_, u"ROLLBACK"_s);
    QSqlDatabase::removeDatabase(name_);
}

}  // namespace verdane::testing
