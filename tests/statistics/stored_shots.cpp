#include "tests/statistics/stored_shots.h"

#include <QTest>

#include "statistics/club_statistics.h"
#include "tests/statistics/selection_windows.h"
#include "tests/support/hand.h"

using namespace Qt::StringLiterals;

namespace verdane::testing {

stored_shots::stored_shots(int days, bool french) : level_rounds(days, french)
{
    store.write(u"update games2 set PARTNERS = '112-' where date = '"_s + key_of_day(1) + u'\'');
}

void stored_shots::shot(int day, int club, const QString& values) const
{
    put_shot(book.store, key_of_day(day), club,
             u"before, after, unit, fairval, penval, missed, shot_type_value"_s, values);
}

QStringList stored_shots::club(int number) const
{
    return table_rows(book.store, u"stat_sticks"_s).at(number - 1);
}

selection_arguments rounds_of_days(int from, int to)
{
    return open_selection(key_of_day(from), key_of_day(to));
}

bool fill_clubs(const selection_arguments& chosen)
{
    run_progress no_bar;
    return Statistics::fill_stat_sticks(chosen, false, no_bar);
}

void fill_without_result(const selection_arguments& chosen)
{
    play([&] { QVERIFY(!fill_clubs(chosen)); }, answer_no_shots);
}

}  // namespace verdane::testing
