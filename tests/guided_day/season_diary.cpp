#include "tests/guided_day/season_diary.h"

#include <QStringList>

#include "tests/support/full_diary.h"
#include "tests/support/reader.h"
#include "tests/support/scorecards.h"

namespace verdane::guided_day {

using namespace Qt::StringLiterals;

namespace {

/// The kit plays its rounds day after day from 1 January 2023 on; nobody would call that a season.
QStringList spread_over_the_year()
{
    QStringList statements;
    for (const char* table : {"games", "games2", "cost", "Stat_rounds"}) {
        statements << u"update %1 set date = strftime('%Y%m%d', '2025-04-15', (5 * (julianday("
                      u"substr(date, 1, 4) || '-' || substr(date, 5, 2) || '-' || substr(date, 7, 2)) "
                      u"- julianday('2023-01-01'))) || ' days') || substr(date, 9)"_s.arg(
                          QLatin1String(table));
    }
    return statements;
}

/// The words in which the scorecard prints the tees.
QStringList named_tees()
{
    QStringList statements;
    for (const testing::scorecard& card : testing::published_scorecards()) {
        statements << u"update vrd_fields set tee = '%1' where code like '%-%2'"_s.arg(card.tee.toUpper())
                          .arg(testing::tee_code(card.tee));
    }
    return statements;
}

}  // namespace

void lay_down_season(const QString& store_path, int rounds)
{
    testing::create_diary(store_path, rounds, true);
    testing::clear_sixth_putts(store_path);
    testing::reader(store_path).write(spread_over_the_year() + named_tees());
}

}  // namespace verdane::guided_day
