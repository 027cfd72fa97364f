#include "reports/query/passed_copy.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

#include <algorithm>

#include "base/run_time_failure.h"
#include "reports/template/page_limits.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

void check(bool well, const QSqlQuery& query)
{
    if (!well)
        throw run_time_failure(failure_kind::store_other, query.lastError().text());
}

/// A text that is too long is cut, as in the tables of the store.
QVariant cut(const QVariant& value)
{
    const QString text = value.toString();
    return value.typeId() != QMetaType::QString || text.size() <= most_text_characters
               ? value
               : QVariant(text.left(most_text_characters - 1) + u'…');
}

void fill(const QSqlDatabase& target, const passed_table& table,
          const std::vector<std::vector<QVariant>>& rows)
{
    QSqlQuery query(target);
    const QStringList places(table.columns.size(), u"?"_s);
    check(query.prepare(u"insert into %1 values (%2)"_s.arg(table.name, places.join(u','))), query);
    for (const std::vector<QVariant>& row : rows) {
        if (static_cast<qsizetype>(row.size()) != table.columns.size())
            throw run_time_failure(failure_kind::misuse, u"%1 values for %2 columns of %3"_s.arg(row.size())
                                                             .arg(table.columns.size())
                                                             .arg(table.name));
        for (std::size_t column = 0; column < row.size(); ++column)
            query.bindValue(static_cast<int>(column), cut(row[column]));
        check(query.exec(), query);
    }
}

void check_names(const passed_rows& rows)
{
    for (const auto& [name, unused] : rows)
        if (std::none_of(passed_tables().begin(), passed_tables().end(),
                         [&name = name](const passed_table& table) { return table.name == name; }))
            throw run_time_failure(failure_kind::misuse, u"rows for %1, which no report has"_s.arg(name));
}

}  // namespace

void create_passed_tables(const QSqlDatabase& target, const passed_rows& rows)
{
    check_names(rows);
    for (const passed_table& table : passed_tables()) {
        QSqlQuery query(target);
        check(query.exec(u"create table %1 (%2)"_s.arg(table.name, table.columns.join(u", "_s))), query);
        const auto passed = rows.find(table.name);
        if (passed != rows.end())
            fill(target, table, passed->second);
    }
}

}  // namespace verdane
