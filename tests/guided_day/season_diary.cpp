#include "tests/guided_day/season_diary.h"

#include <QDate>
#include <QStringList>

#include "tests/support/full_diary.h"
#include "tests/support/reader.h"
#include "tests/support/scorecards.h"

namespace verdane::guided_day {

using namespace Qt::StringLiterals;

namespace {

/// `create_diary` makes a round for each day from 1 January 2023; these dates are five days apart.
QString key_in_season(const QString& key)
{
    const QDate day = QDate::fromString(key.left(8), u"yyyyMMdd"_s);
    const qint64 days = 5 * QDate(2023, 1, 1).daysTo(day);
    return QDate(2025, 4, 15).addDays(days).toString(u"yyyyMMdd"_s) + key.mid(8);
}

QStringList statements_for_dates(const testing::reader& store)
{
    QStringList statements;
    for (const auto& row : store.rows(u"select date from games"_s)) {
        const QString key = row[0].toString();
        for (const QString& table : {u"games"_s, u"games2"_s, u"cost"_s, u"Stat_rounds"_s})
            statements << u"update %1 set date = '%2' where date = '%3'"_s.arg(table, key_in_season(key),
                                                                               key);
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

void create_season(const store_location& place, int rounds)
{
    testing::create_diary(place, rounds, true);
    testing::clear_sixth_putts(place);
    const testing::reader store(place);
    store.write(statements_for_dates(store) + statements_for_tees());
}

}  // namespace verdane::guided_day
