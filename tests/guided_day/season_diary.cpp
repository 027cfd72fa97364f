#include "tests/guided_day/season_diary.h"

#include <QStringList>

#include "tests/support/full_diary.h"
#include "tests/support/reader.h"
#include "tests/support/scorecards.h"

namespace verdane::guided_day {

using namespace Qt::StringLiterals;

namespace {

/// `create_diary` makes a round for each day from 1 January 2023; these dates are five days apart.
QStringList statements_for_dates()
{
    QStringList statements;
    for (const QString& table : {u"games"_s, u"games2"_s, u"cost"_s, u"Stat_rounds"_s}) {
        statements << u"update %1 set date = strftime('%Y%m%d', '2025-04-15', (5 * (julianday("
                      u"substr(date, 1, 4) || '-' || substr(date, 5, 2) || '-' || substr(date, 7, 2)) "
                      u"- julianday('2023-01-01'))) || ' days') || substr(date, 9)"_s.arg(table);
    }
    return statements;
}

/// The names of the tees for the scorecard.
QStringList statements_for_tees()
{
    QStringList statements;
    for (const testing::scorecard& card : testing::published_scorecards()) {
        statements << u"update vrd_fields set tee = '%1' where code like '%-%2'"_s.arg(card.tee.toUpper())
                          .arg(testing::tee_code(card.tee));
    }
    return statements;
}

}  // namespace

void create_season(const QString& store_path, int rounds)
{
    testing::create_diary(store_path, rounds, true);
    testing::clear_sixth_putts(store_path);
    testing::reader(store_path).write(statements_for_dates() + statements_for_tees());
}

}  // namespace verdane::guided_day
