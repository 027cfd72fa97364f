#include <QTest>

#include <numeric>

#include "controls/boxes.h"
#include "reports/query/report_snapshot.h"
#include "store/DataEnvironment1.h"
#include "tests/statistics/selection_windows.h"
#include "tests/support/stored_diary.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

using row = std::vector<double>;

/// A row with the same figure on every hole: both nines and the total follow.
row flat(double figure)
{
    row figures(18, figure);
    for (const double sum : {9 * figure, 9 * figure, 18 * figure})
        figures.push_back(sum);
    return figures;
}

diary_course pebble()
{
    return course_of(u"Pebble Beach"_s, u"Gold"_s);
}

diary_course carnoustie()
{
    return course_of(u"Carnoustie Championship"_s, u"White"_s);
}

/// A fresh store with courses and rounds, which reports read too.
class filled_store : public stored_diary {
public:
    explicit filled_store(const std::vector<diary_round>& rounds, bool french = true) : stored_diary(french)
    {
        set_report_store(location());
        for (const diary_course& course : {pebble(), carnoustie()})
            book.add(course);
        book.add(rounds);
    }

    row stats(int number) const { return stats_row(book.store, number); }
    QString head(const QString& column) const { return stats_head(book.store, column).toString(); }
};

/// A par round on Pebble Beach (par 72), one stroke more on every hole for each `over`.
diary_round pebble_round(int day, int over = 0)
{
    return {key_of_day(day), pebble(), holes_over(pebble().pars, over), 0, {}};
}

double total(const row& figures)
{
    return figures.back();
}

}  // namespace

class test_round_statistics : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void one_round_fills_every_line_data() { both_languages(); }
    void one_round_fills_every_line()
    {
        QFETCH(bool, french);
        diary_round round = pebble_round(1, 1);
        round.weather = 2;
        round.holes[6].water = 1;
        round.holes[6].sand = 2;
        round.holes[6].missed = 3;
        round.holes[6].fairway = 1;
        const filled_store store({round}, french);
        in_selection_window(run_without_detail);
        // 72 + 18 + the water on hole 7, a par 3 that is played in 5.
        const row strokes = store.stats(0);
        QCOMPARE(strokes[0], 5.0);
        QCOMPARE(strokes[6], 5.0);
        QCOMPARE(total(strokes), 91.0);
        QCOMPARE(strokes[18] + strokes[19], 91.0);
        QCOMPARE(store.head(u"average_mark"_s), u" "_s);
        QCOMPARE(store.head(u"handicap_text"_s), u"N/A"_s);
        QCOMPARE(store.head(u"round_count"_s), u"1"_s);
        QCOMPARE(store.head(u"from_text"_s), u"2003-01-01 09:30:00"_s);
        QCOMPARE(store.head(u"to_text"_s), u"2003-01-01 09:30:00"_s);
        QCOMPARE(store.head(u"course_text"_s), french ? u"TOUS LES TERRAINS"_s : u"ALL COURSES"_s);
        QCOMPARE(store.head(u"partner_text"_s), french ? u"TOUS LES PARTENAIRES"_s : u"ALL PARTNERS"_s);
        QCOMPARE(store.head(u"weather_text"_s), french ? u" TOUTES"_s : u" ALL"_s);
        QCOMPARE(store.stats(1)[6], 1.0);
        QCOMPARE(store.stats(2)[6], 2.0);
        QCOMPARE(store.stats(3)[6], 3.0);
        QCOMPARE(store.stats(4)[6], 1.0);
        QCOMPARE(total(store.stats(8)), 1.0);
        row over = flat(1);
        over[6] = 2;
        over[18] = 10;
        over[20] = 19;
        QCOMPARE(store.stats(9), over);
        QCOMPARE(total(store.stats(10)), 0.0);
        QCOMPARE(total(store.stats(31)), 17.0);
        QCOMPARE(total(store.stats(32)), 1.0);
        QVERIFY(open_recordsets().isEmpty());
    }

    void two_rounds_are_a_mean_only_in_the_total_of_the_strokes()
    {
        const filled_store store({pebble_round(1, 0), pebble_round(2, 1)});
        in_selection_window([](hand& user) {
            select_range(user, 0, 1);
            run_without_detail(user);
        });
        const row strokes = store.stats(0);
        QCOMPARE(strokes[0], 9.0);
        QCOMPARE(strokes[18] + strokes[19], 72.0 + 90.0);
        QCOMPARE(total(strokes), 81.0);
        QCOMPARE(store.head(u"average_mark"_s), u"0"_s);
        QCOMPARE(store.head(u"round_count"_s), u"2"_s);
        QCOMPARE(store.head(u"to_text"_s), u"2003-01-02 09:30:00"_s);
        QCOMPARE(store.stats(9), flat(0.5));
        QCOMPARE(store.stats(10), flat(1));
        // Par 3s at 3 and 4 strokes: 3.5 is rounded to the even 4; 4.5 to 4; 5.5 to 6.
        QCOMPARE(store.stats(24)[4], 4.0);
        QCOMPARE(store.stats(25)[0], 4.0);
        QCOMPARE(store.stats(26)[1], 6.0);
        QCOMPARE(total(store.stats(24)), 3.5);
        QCOMPARE(total(store.stats(25)), 4.5);
        QCOMPARE(total(store.stats(26)), 5.5);
    }

    void a_hole_with_different_pars_on_two_courses_counts_in_the_mean_of_each_par()
    {
        // Hole 2 is a par 5 on Pebble Beach and a par 4 on Carnoustie.
        const filled_store store({pebble_round(1, 0),
                                  pebble_round(2, 2),
                                  {key_of_day(3), carnoustie(), holes_over(carnoustie().pars, 1), 0, {}}});
        in_selection_window([](hand& user) {
            select_range(user, 0, 2);
            run_without_detail(user);
        });
        QCOMPARE(store.stats(26)[1], 6.0);
        QCOMPARE(store.stats(25)[1], 5.0);
        QCOMPARE(store.stats(22)[1], 0.0);
        QCOMPARE(store.stats(23)[1], 1.0);
    }

    void five_rounds_give_a_handicap()
    {
        std::vector<diary_round> rounds;
        for (int day = 1; day <= 5; ++day)
            rounds.push_back(pebble_round(day, day));
        const filled_store store(rounds);
        in_selection_window([](hand& user) {
            select_range(user, 0, 4);
            run_without_detail(user);
        });
        // The best is 90: (90 - 73.4) * 113 / 137 = 13.69...
        QCOMPARE(store.head(u"handicap_text"_s), u" 13.7"_s);
    }

    void a_hole_without_strokes_counts_nothing_but_its_par()
    {
        diary_round round = pebble_round(1);
        round.holes[17].stored = false;
        const filled_store store({round});
        in_selection_window(run_without_detail);
        QCOMPARE(store.stats(0)[17], 0.0);
        QCOMPARE(store.stats(9)[17], -5.0);
        QCOMPARE(store.stats(26)[17], 0.0);
        for (int line = 10; line <= 33; ++line)
            QCOMPARE(store.stats(line)[17], 0.0);
    }

    void a_filter_leaves_out_rounds_and_is_named_in_the_heading_data()
    {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<int>("entry");
        QTest::addColumn<QString>("column");
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("strokes");
        // Rounds of 72, 90, 108 on Pebble Beach and 126 on Carnoustie.
        QTest::newRow("sunny") << "conditions" << 1 << "weather_text"
                               << "Ensoleillé" << 72.0;
        QTest::newRow("windy") << "conditions" << 4 << "weather_text"
                               << "Vent" << 126.0;
        QTest::newRow("a course") << "cmb_courses" << 2 << "course_text"
                                  << "Carnoustie Championship, BLANC" << 126.0;
        QTest::newRow("partner 12, whose number is found in 112, too") << "pList" << 1 << "partner_text"
                                                                       << "Anne, Douze" << 90.0;
        QTest::newRow("partner 7") << "pList" << 2 << "partner_text"
                                   << "Zoé, Sept" << 90.0;
    }
    void a_filter_leaves_out_rounds_and_is_named_in_the_heading()
    {
        QFETCH(QString, filter);
        QFETCH(int, entry);
        QFETCH(double, strokes);
        QFETCH(QString, column);
        std::vector<diary_round> rounds{pebble_round(1, 0), pebble_round(2, 1), pebble_round(3, 2)};
        rounds.push_back({key_of_day(4), carnoustie(), holes_over(carnoustie().pars, 3), 3, {}});
        rounds[0].partners = u"12-"_s;
        rounds[1].partners = u"7-33-"_s;
        rounds[1].weather = 1;
        rounds[2].partners = u"112-"_s;
        rounds[2].weather = 2;
        const filled_store store(rounds);
        store.book.add_partner(u"Anne"_s, u"Douze"_s, 12);
        store.book.add_partner(u"Zoé"_s, u"Sept"_s, 7);
        in_selection_window([&](hand& user) {
            select_range(user, 0, 3);
            user.choose(filter, entry);
            run_without_detail(user);
        });
        QTEST(store.head(column), "text");
        QCOMPARE(total(store.stats(0)), strokes);
        const bool two_rounds = entry == 1 && filter == u"pList";
        QCOMPARE(store.head(u"round_count"_s).toInt(), two_rounds ? 2 : 1);
    }

    void a_reversed_range_has_no_round_data() { both_languages(); }
    void a_reversed_range_has_no_round()
    {
        QFETCH(bool, french);
        const filled_store store({pebble_round(1), pebble_round(2)}, french);
        store.book.store.write(u"update stats set hole_3 = 7, front_nine = 9, all_holes = 1"_s);
        const auto steps = bar_in_selection_window([](hand& user) {
            select_range(user, 1, 0);
            run(user);
            answer_no_detail(user);
            answer_no_round(user);
            user.check(!user.visible(u"Status"_s), u"the bar is hidden"_s);
            user.check(!user.is_open(u"report_preview"_s), u"no report"_s);
        });
        QCOMPARE(steps, (QList<bar_step>{{20, true}, {40, true}, {30, true}}));
        for (int line = 0; line < 34; ++line)
            QCOMPARE(store.stats(line), flat(0));
        QVERIFY(open_recordsets().isEmpty());
    }

    void the_bar_shows_each_step_and_is_hidden_at_the_end()
    {
        const filled_store store({pebble_round(1)});
        const auto steps = bar_in_selection_window([](hand& user) {
            user.check(!user.visible(u"Status"_s), u"no bar before the run"_s);
            run_without_detail(user);
            user.check(!user.visible(u"Status"_s), u"no bar after the run"_s);
        });
        QList<bar_step> expected;
        for (const int value : {20, 40, 30, 50, 60, 80, 100})
            expected << bar_step{value, true};
        QCOMPARE(steps, expected);
    }

    void each_run_uses_the_selection_of_its_moment()
    {
        const filled_store store({pebble_round(1, 0), pebble_round(2, 3)});
        in_selection_window([&](hand& user) {
            run_without_detail(user);
            user.same(static_cast<int>(total(store.stats(0))), 72, u"first run"_s);
            select_range(user, 1, 1);
            run_without_detail(user);
            user.same(static_cast<int>(total(store.stats(0))), 126, u"second run"_s);
        });
    }

    void a_run_leaves_the_statements_on_whole_tables()
    {
        const filled_store store({pebble_round(1)});
        in_selection_window(run_without_detail);
        QCOMPARE(data_environment().rsgames.Source(), u"Select * from games"_s);
        QCOMPARE(data_environment().rshand.Source(), u"select * from hand"_s);
        QCOMPARE(data_environment().rsStat_rounds.Source().toUpper(), u"SELECT * FROM STAT_ROUNDS"_s);
        QCOMPARE(store.book.store.number(u"select count(*) from stats"_s), 34);
    }

    void a_round_without_one_of_its_rows_shows_its_message_and_no_report_data()
    {
        QTest::addColumn<QString>("loss");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("french");
        for (const bool french : {true, false}) {
            const char* in = french ? "in French" : "in English";
            QTest::addRow("the course, %s", in)
                << "update vrd_fields set code = 'X-0' where code like 'PEBBLE%'"
                << "Fatal Error : 1 " << french;
            QTest::addRow("the holes, %s", in) << "delete from field_info where FIELD_CODE like 'PEBBLE%'"
                                               << "Fatal Error : 2 " << french;
            QTest::addRow("games2, %s", in) << "delete from games2 where date = '20030101093000'"
                                            << "Fatal Error : 3 " << french;
        }
    }
    void a_round_without_one_of_its_rows_shows_its_message_and_no_report()
    {
        QFETCH(QString, loss);
        QFETCH(QString, text);
        QFETCH(bool, french);
        const filled_store store(
            {pebble_round(1), {key_of_day(2), carnoustie(), holes_over(carnoustie().pars, 0), 0, {}}},
            french);
        store.book.store.write(loss);
        in_selection_window([&](hand& user) {
            run(user);
            answer_no_detail(user);
            user.answer({text, QMessageBox::Critical, QString(), QMessageBox::Ok});
            user.wait_for_window(selection_window());
            user.check(!user.visible(u"Status"_s), u"the bar is hidden"_s);
            user.check(!user.is_open(u"report_preview"_s), u"no report"_s);
            user.check(open_recordsets().isEmpty(), u"open: "_s + open_recordsets().join(u' '));
            // The next run of the window is not affected.
            select_range(user, 1, 1);
            run_without_detail(user);
        });
        QCOMPARE(total(store.stats(0)), 72.0);
        QCOMPARE(data_environment().rsgames.Source(), u"Select * from games"_s);
    }
};

QTEST_MAIN(test_round_statistics)
#include "test_round_statistics.moc"
