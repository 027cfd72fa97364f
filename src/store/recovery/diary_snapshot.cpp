#include "store/recovery/diary_snapshot.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QUuid>

#include <limits>

#include "base/run_time_failure.h"
#include "store/schema.h"
#include "store/table_copy.h"

namespace verdane {

using namespace Qt::StringLiterals;

diary_snapshot::diary_snapshot(const store_location& store) : name_(QUuid::createUuid().toString())
{
    database_ = QSqlDatabase::addDatabase(u"QSQLITE"_s, name_);
    database_.setConnectOptions(u"QSQLITE_OPEN_URI"_s);
    database_.setDatabaseName(u":memory:"_s);
    if (!database_.open())
        throw run_time_failure(failure_kind::store_other, database_.lastError().text());
    copied_tables all;
    all.most_characters = std::numeric_limits<int>::max();
    for (const table& each : schema())
        all.names << each.name;
    copy_tables(store, all, database_, {});
}

diary_snapshot::~diary_snapshot()
{
    database_ = {};
    QSqlDatabase::removeDatabase(name_);
}

std::vector<std::vector<QVariant>> diary_snapshot::rows(const QString& statement) const
{
    QSqlQuery query(database_);
    query.setForwardOnly(true);
    if (!query.exec(statement))
        throw run_time_failure(failure_kind::store_other, statement + u": "_s + query.lastError().text());
    std::vector<std::vector<QVariant>> all;
    const int columns = query.record().count();
    while (query.next()) {
        auto& row = all.emplace_back();
        for (int column = 0; column < columns; ++column)
            row.push_back(query.value(column));
    }
    return all;
}

int diary_snapshot::number(const QString& statement) const
{
    const auto all = rows(statement);
    return all.empty() ? 0 : all[0][0].toInt();
}

}  // namespace verdane
