#include "reports/query/report_tables.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

#include <algorithm>

#include "base/run_time_failure.h"
#include "reports/template/page_limits.h"
#include "store/tables/cost.h"
#include "store/tables/golf_bag.h"
#include "store/tables/hand.h"
#include "store/tables/putts.h"
#include "store/tables/r_card.h"
#include "store/tables/stat_sticks.h"
#include "store/tables/stats.h"

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

/// The value of a column. Fails if the row has none for it.
QVariant value_of(const passed_row& row, const passed_table& table, const QString& column)
{
    const auto found = row.find(column);
    if (found == row.end())
        throw run_time_failure(failure_kind::misuse, u"a row of %1 without %2"_s.arg(table.name, column));
    return found->second;
}

void fill(const QSqlDatabase& target, const passed_table& table, const std::vector<passed_row>& rows)
{
    QSqlQuery query(target);
    const QStringList places(table.columns.size(), u"?"_s);
    check(query.prepare(u"insert into %1 values (%2)"_s.arg(table.name, places.join(u','))), query);
    for (const passed_row& row : rows) {
        if (static_cast<qsizetype>(row.size()) != table.columns.size())
            throw run_time_failure(failure_kind::misuse, u"%1 values for %2 columns of %3"_s.arg(row.size())
                                                             .arg(table.columns.size())
                                                             .arg(table.name));
        for (int column = 0; column < table.columns.size(); ++column)
            query.bindValue(column, cut(value_of(row, table, table.columns[column])));
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

const QStringList& stored_tables()
{
    static const QStringList names = [] {
        QStringList all;
        for (const tables::table_declaration& table :
             {tables::stats::table, tables::s_put1::table, tables::s_put2::table, tables::stat_sticks::table,
              tables::r_cost::table, tables::hand::table, tables::r_card::table, tables::sticknames::table})
            all << QStringView(table.name).toString();
        return all;
    }();
    return names;
}

const std::vector<passed_table>& passed_tables()
{
    static const std::vector<passed_table> tables{
        {u"season"_s,
         {u"rounds"_s, u"whole_rounds"_s, u"holes"_s, u"mean_window"_s, u"gross"_s, u"over"_s, u"putts"_s,
          u"greens"_s, u"penalties"_s, u"ranked_holes"_s, u"least_plays"_s}},
        {u"season_rounds"_s,
         {u"place"_s, u"date"_s, u"course"_s, u"holes"_s, u"whole"_s, u"gross"_s, u"rating"_s, u"slope"_s,
          u"differential"_s, u"counting"_s, u"handicap"_s, u"over"_s, u"moving_mean"_s, u"putts"_s,
          u"greens"_s, u"penalties"_s}},
        {u"season_handicap"_s,
         {u"rounds"_s, u"take"_s, u"sum"_s, u"mean"_s, u"factor"_s, u"product"_s, u"handicap"_s, u"missing"_s,
          u"least_rounds"_s}},
        {u"season_ladder"_s, {u"first_rounds"_s, u"last_rounds"_s, u"take"_s, u"is_current"_s}},
        {u"season_holes"_s,
         {u"is_best"_s, u"rank"_s, u"course"_s, u"hole"_s, u"par"_s, u"plays"_s, u"mean_over"_s}},
        {u"season_courses"_s,
         {u"course"_s, u"rounds"_s, u"whole_rounds"_s, u"gross"_s, u"best_gross"_s, u"over"_s, u"putts"_s,
          u"greens"_s, u"penalties"_s, u"best_differential"_s}}};
    return tables;
}

const QStringList& readable_tables()
{
    static const QStringList tables = [] {
        QStringList all = stored_tables();
        for (const passed_table& table : passed_tables())
            all.append(table.name);
        return all;
    }();
    return tables;
}

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
