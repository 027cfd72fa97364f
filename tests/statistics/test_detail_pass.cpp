#include <QTest>

#include "controls/boxes.h"
#include "reports/query/report_snapshot.h"
#include "statistics/detail_pass.h"
#include "statistics/stats_table.h"
#include "store/DataEnvironment1.h"
#include "tests/statistics/selection_windows.h"
#include "tests/support/failures.h"
#include "tests/support/stored_diary.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

const QString first_key = key_of_day(1);

/// Hole 2 of the first round shot by shot: a drive into the water, a good second drive, a missed approach
/// from the sand, an approach, two putts (one of which has the code of a shot in the fairway).
void add_shots_of_hole_2(const diary& book, const QString& key)
{
    book.add(diary_shot{key, 2, 1, 1, 2, 1, false, false, 5});
    book.add(diary_shot{key, 2, 2, 1, 1, 0, false, false, 5});
    book.add(diary_shot{key, 2, 3, 2, 3, 0, true, true, 5});
    book.add(diary_shot{key, 2, 4, 2, 1, 0, false, false, 5});
    book.add(diary_shot{key, 2, 5, 3, 1, 0, false, false, 5});
    book.add(diary_shot{key, 2, 6, 3, 0, 0, false, false, 5});
}

diary_course course()
{
    return course_of(u"Pebble Beach"_s, u"Gold"_s);
}

diary_round round_on(int day, int over)
{
    return {key_of_day(day), course(), holes_over(course().pars, over), day % 4, {}};
}

selection_arguments days(int from, int to)
{
    selection_arguments chosen;
    chosen.from_key = key_of_day(from);
    chosen.to_key = key_of_day(to);
    return chosen;
}

/// What the detail pass alone leaves in the table.
void write_detail_of(const selection_arguments& chosen)
{
    stats_table::open_cleared();
    Statistics::write_detail(Statistics::gather_detail(chosen));
    data_environment().rsstats.Update();
    data_environment().rsstats.Close();
}

}  // namespace

class test_detail_pass : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_shots_of_a_hole_fill_rows_1_to_9()
    {
        const stored_diary store;
        store.book.add(course());
        store.book.add(round_on(1, 0));
        add_shots_of_hole_2(store.book, first_key);
        store.book.add(diary_shot{first_key, 18, 1, 1, 1, 3, false, false, 5});
        store.book.add(diary_shot{first_key, 18, 2, 1, 0, 2, false, false, 5});
        store.book.add(diary_shot{first_key, 18, 3, 1, 0, 4, false, false, 5});
        store.store.write(u"update stats set hole_1 = 3, front_nine = 3"_s);
        write_detail_of(days(1, 1));
        const std::vector<double> hole_2{2, 1, 1, 1, 0, 0, 0, 1, 2};
        const std::vector<double> hole_18{1, 0, 0, 0, 1, 1, 1, 3, 1};
        for (int line = 1; line <= 9; ++line) {
            const auto figures = stats_row(store.store, line);
            QCOMPARE(figures[1], hole_2[static_cast<std::size_t>(line - 1)]);
            QCOMPARE(figures[17], hole_18[static_cast<std::size_t>(line - 1)]);
            QCOMPARE(figures[0], 0.0);
            QCOMPARE(figures[18], 0.0);
        }
        QCOMPARE(stats_row(store.store, 0)[1], 0.0);
        QCOMPARE(stats_row(store.store, 10)[1], 0.0);
    }

    void a_selection_has_detail_if_a_matching_round_has_shots_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::addColumn<QString>("clause");
        QTest::addColumn<bool>("detailed");
        QTest::newRow("the round with shots") << 2 << 2 << " " << true;
        QTest::newRow("among others") << 1 << 3 << " " << true;
        QTest::newRow("rounds without shots") << 3 << 4 << " " << false;
        QTest::newRow("its weather") << 1 << 4 << " AND (games2.conditionM = 2)" << true;
        QTest::newRow("another weather") << 1 << 4 << " AND (games2.conditionM = 1)" << false;
        QTest::newRow("a partner of no round") << 1 << 4 << " AND INSTR(GAMES2.PARTNERS,'9')" << false;
    }
    void a_selection_has_detail_if_a_matching_round_has_shots()
    {
        QFETCH(int, from);
        QFETCH(int, to);
        QFETCH(QString, clause);
        const stored_diary store;
        store.book.add(course());
        for (int day = 1; day <= 4; ++day)
            store.book.add(round_on(day, 0));
        add_shots_of_hole_2(store.book, key_of_day(2));
        selection_arguments chosen = days(from, to);
        chosen.weather_clause = clause;
        QTEST(!Statistics::gather_detail(chosen).empty(), "detailed");
        QVERIFY(open_recordsets().isEmpty());
    }

    void a_shot_on_hole_19_fails()
    {
        const stored_diary store;
        store.book.add(course());
        store.book.add(round_on(1, 0));
        store.book.add(diary_shot{first_key, 19, 1, 1, 1, 0, false, false, 4});
        stats_table::open_cleared();
        const auto holes = Statistics::gather_detail(days(1, 1));
        QCOMPARE(failure_of([&] { Statistics::write_detail(holes); }), failure_kind::subscript);
    }

    void a_detailed_round_shows_no_message_and_the_summary_pass_overwrites_its_figures_data()
    {
        both_languages();
    }
    void a_detailed_round_shows_no_message_and_the_summary_pass_overwrites_its_figures()
    {
        QFETCH(bool, french);
        const stored_diary store(french);
        set_report_store(store.location());
        store.book.add(course());
        diary_round round = round_on(1, 0);
        round.holes[1].fairway = 7;
        store.book.add(round);
        add_shots_of_hole_2(store.book, first_key);
        in_selection_window([](hand& user) {
            run(user);
            close_report(user);
        });
        QCOMPARE(stats_row(store.store, 1)[1], 7.0);
        for (int line = 2; line <= 9; ++line)
            QCOMPARE(stats_row(store.store, line)[1], 0.0);
        QVERIFY(open_recordsets().isEmpty());
    }

    void shots_without_a_round_show_only_the_second_message()
    {
        const stored_diary store;
        set_report_store(store.location());
        store.book.add(course());
        for (int day = 1; day <= 3; ++day)
            store.book.add(round_on(day, 0));
        add_shots_of_hole_2(store.book, key_of_day(2));
        store.store.write(u"delete from games where date = '%1'"_s.arg(key_of_day(2)));
        in_selection_window([](hand& user) {
            select_range(user, 0, 1);
            user.choose(u"conditions"_s, 3);
            run(user);
            answer_no_round(user);
            user.check(!user.is_open(u"report_preview"_s), u"no report"_s);
        });
        for (int line = 0; line < 34; ++line)
            QCOMPARE(stats_row(store.store, line)[1], 0.0);
        QVERIFY(open_recordsets().isEmpty());
    }
};

QTEST_MAIN(test_detail_pass)
#include "test_detail_pass.moc"
