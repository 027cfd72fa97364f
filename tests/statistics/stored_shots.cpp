#include "tests/statistics/stored_shots.h"

#include <QTest>

#include "reports/report_store.h"
#include "statistics/club_statistics.h"
#include "tests/statistics/report_rows.h"
#include "tests/statistics/selection_windows.h"
#include "tests/support/hand.h"

using namespace Qt::StringLiterals;

namespace verdane::testing {

stored_shots::stored_shots(int days, bool french) : folder(french), book(folder.path())
{
    set_report_store(folder.path());
    const diary_course course = flat_course(u"PINS-0"_s, 4, u"70"_s, u"113"_s);
    book.add(course);
    for (int day = 1; day <= days; ++day)
        book.add(diary_round{key_of_day(day), course, holes_over(course.pars, 0), day % 2,
                             day == 1 ? u"112-"_s : QString()});
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

void fill_in_vain(const selection_arguments& chosen)
{
    play([&] { QVERIFY(!fill_clubs(chosen)); }, answer_no_shots);
}

}  // namespace verdane::testing
