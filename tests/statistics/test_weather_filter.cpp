#include <QComboBox>
#include <QTest>

#include "statistics/club_statistics.h"
#include "statistics/cost_statistics.h"
#include "statistics/detail_pass.h"
#include "statistics/f_date_range.h"
#include "statistics/f_date_range_func.h"
#include "statistics/putt_statistics.h"
#include "statistics/round_statistics.h"
#include "store/DataEnvironment1.h"
#include "tests/statistics/report_rows.h"
#include "tests/statistics/selection_windows.h"
#include "tests/support/hand_widgets.h"
#include "tests/support/stored_diary.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

constexpr int weathers = 4;
constexpr int day_without_weather = 5;

/// A round in each weather, on the days 1 to 4, and one whose weather is Null on day 5. Each has a shot, a
/// putt and costs.
class rounds_in_all_weathers : public stored_diary {
public:
    rounds_in_all_weathers()
    {
        const diary_course course = flat_course(u"PINS-0"_s, 4, u"70"_s, u"113"_s);
        book.add(course);
        for (int day = 1; day <= day_without_weather; ++day) {
            const QString key = key_of_day(day);
            book.add(diary_round{key, course, holes_over(course.pars, 0), day - 1, {}});
            put_shot(book.store, key, 1, u"before, after, unit, shot_type_value"_s,
                     u"400, 150, 'Yards', 1"_s);
            put_putts(book.store, key, 1, {10});
            put_costs(book.store, key, 1);
        }
        book.store.write(u"update games2 set conditionM = null where date = '"_s +
                         key_of_day(day_without_weather) + u'\'');
    }
};

/// All rounds, with an entry of the list of weathers chosen; 0 is no filter.
selection_arguments all_rounds_in(int weather_entry, statistics_mode mode)
{
    f_date_range window(mode);
    select_all_rounds(window);
    find_control<QComboBox>(window, u"conditions"_s).setCurrentIndex(weather_entry);
    return f_date_range_func::selection_of(window);
}

/// The shots of hole 1 in the selection.
int shots_in_detail(const selection_arguments& chosen)
{
    const auto holes = Statistics::gather_detail(chosen);
    return holes.empty() ? 0 : static_cast<int>(holes.front().shots);
}

void weather_entries()
{
    QTest::addColumn<int>("entry");
    QTest::addColumn<int>("rounds");
    QTest::newRow("no filter takes the round without weather, too") << 0 << day_without_weather;
    for (int entry = 1; entry <= weathers; ++entry)
        QTest::addRow("weather %d has its own round alone", entry - 1) << entry << 1;
}

}  // namespace

class test_weather_filter : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_round_without_a_weather_matches_no_weather_in_round_statistics_data() { weather_entries(); }
    void a_round_without_a_weather_matches_no_weather_in_round_statistics()
    {
        QFETCH(int, entry);
        QFETCH(int, rounds);
        const rounds_in_all_weathers store;
        const selection_arguments chosen = all_rounds_in(entry, statistics_mode::round);
        QCOMPARE(shots_in_detail(chosen), rounds);
        QVERIFY(Statistics::rounds_in_stats(chosen, no_bar_));
        QCOMPARE(stats_head(store.book.store, u"round_count"_s).toInt(), rounds);
        QCOMPARE(store.book.store.number(u"select count(*) from hand"_s), rounds);
    }

    void a_round_without_a_weather_matches_no_weather_in_putt_statistics_data() { weather_entries(); }
    void a_round_without_a_weather_matches_no_weather_in_putt_statistics()
    {
        QFETCH(int, entry);
        QFETCH(int, rounds);
        const rounds_in_all_weathers store;
        QVERIFY(Statistics::fill_putt_tables(all_rounds_in(entry, statistics_mode::putt), no_bar_));
        QCOMPARE(store.book.store.number(u"select sum(round_count) from s_put1"_s), rounds);
    }

    void a_round_without_a_weather_matches_no_weather_in_club_statistics_data() { weather_entries(); }
    void a_round_without_a_weather_matches_no_weather_in_club_statistics()
    {
        QFETCH(int, entry);
        QFETCH(int, rounds);
        const rounds_in_all_weathers store;
        QVERIFY(Statistics::fill_stat_sticks(all_rounds_in(entry, statistics_mode::club), false, no_bar_));
        QCOMPARE(store.book.store.number(u"select sum(round_count) from stat_sticks"_s), rounds);
        QCOMPARE(store.book.store.number(u"select trim(shot_count) from stat_sticks limit 1"_s), rounds);
    }

    void a_round_without_a_weather_matches_no_weather_in_cost_statistics_data() { weather_entries(); }
    void a_round_without_a_weather_matches_no_weather_in_cost_statistics()
    {
        QFETCH(int, entry);
        QFETCH(int, rounds);
        const rounds_in_all_weathers store;
        QVERIFY(Statistics::fill_r_cost(all_rounds_in(entry, statistics_mode::cost), no_bar_));
        QCOMPARE(store.book.store.number(u"select count(*) from r_cost"_s), rounds);
        const QString of_null =
            u"select count(*) from r_cost where date = '"_s + key_of_day(day_without_weather) + u'\'';
        QCOMPARE(store.book.store.number(of_null), entry == 0 ? 1 : 0);
    }

private:
    run_progress no_bar_;
};

QTEST_MAIN(test_weather_filter)
#include "test_weather_filter.moc"
