#include <QTest>

#include "scoring/putt_bands.h"
#include "statistics/putt_statistics.h"
#include "store/DataEnvironment1.h"
#include "tests/statistics/putt_rounds.h"
#include "tests/statistics/report_rows.h"
#include "tests/support/failures.h"
#include "tests/support/window_look.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// Fills the tables of a selection that has nothing to print.
void fill_without_result(const selection_arguments& chosen)
{
    play([&] { QVERIFY(!fill_grids(chosen)); }, answer_no_putts);
}

QStringList only(int band, const QString& count)
{
    QStringList counts(7, u"0"_s);
    counts[band - 1] = count;
    return counts;
}

const QStringList no_bands(7, u"0"_s);

/// The same lengths on every hole of every round.
void putts_everywhere(const reader& store, const QList<int>& lengths)
{
    QStringList assignments;
    for (int h = 1; h <= 18; ++h) {
        for (int i = 0; i < lengths.size(); ++i)
            assignments << u"putt_len_%1_%2 = %3"_s.arg(h).arg(i + 1).arg(lengths[i]);
    }
    store.write(u"update games2 set "_s + assignments.join(u','));
}

}  // namespace

class test_putt_statistics : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void two_putts_from_20_feet_fill_both_grids_data() { both_languages(); }
    void two_putts_from_20_feet_fill_both_grids()
    {
        QFETCH(bool, french);
        const stored_rounds rounds(1, french);
        rounds.putts(1, 5, {20, 3});
        QVERIFY(fill_grids(days(1, 1)));
        for (int k = 1; k <= 5; ++k)
            QCOMPARE(bands(rounds.by_first(k)), k == 2 ? only(4, u"1"_s) : no_bands);
        for (int k = 1; k <= 4; ++k)
            QCOMPARE(rounds.by_first(k).mid(13, 8), QStringList(8, u" "_s));
        QCOMPARE(rounds.by_first(5).mid(13, 8),
                 (QStringList{u" 0"_s, u" 0"_s, u" 0"_s, u" 2"_s, u" 0"_s, u" 0"_s, u" 0"_s, u" 2"_s}));
        for (int i = 1; i <= 7; ++i) {
            QCOMPARE(bands(rounds.by_start(i)), i == 4   ? only(6, u"1"_s)
                                                : i == 7 ? only(7, u"1"_s)
                                                         : no_bands);
            QCOMPARE(rounds.by_start(i).mid(11, 2),
                     i == 7 ? (QStringList{u" 2"_s, french ? u"MOYEN"_s : u"Average"_s})
                            : (QStringList{u" "_s, u" "_s}));
        }
    }

    void the_first_rows_contain_the_texts_of_the_run_data() { both_languages(); }
    void the_first_rows_contain_the_texts_of_the_run()
    {
        QFETCH(bool, french);
        const stored_rounds rounds(3, french);
        rounds.putts(2, 1, {9});
        QVERIFY(fill_grids(days(1, 3)));
        QCOMPARE(rounds.by_first(1).mid(11, 2),
                 (QStringList{u"2003-01-01 09:30:00"_s, u"2003-01-03 09:30:00"_s}));
        // Rounds walked, also those without lengths.
        QCOMPARE(rounds.by_first(1).mid(23),
                 (QStringList{u"ALL"_s, u"ALL PARTNERS"_s, u"ALL COURSES"_s, u"3"_s}));
        QCOMPARE(rounds.by_first(1).mid(21, 2),
                 french ? (QStringList{u"Distance de la balle au trou"_s,
                                       u"Distance de la balle au trou après le coup"_s})
                        : (QStringList{u"Ball-To-Hole Distance"_s, u"Ball-To-Hole Distance after shot "_s}));
        QCOMPARE(rounds.by_start(1).mid(13, 2),
                 french ? (QStringList{u"Distance de la balle au trou après le coup"_s,
                                       u"Distance de la balle au trou"_s})
                        : (QStringList{u"Ball-To-Hole Distance after shot"_s, u"Ball-To-Hole Distance"_s}));
    }

    void rounds_add_up_and_means_are_cut()
    {
        const stored_rounds rounds(3);
        rounds.putts(1, 1, {50, 5, 1});
        rounds.putts(2, 1, {50, 1});
        rounds.putts(3, 1, {50, 3});
        QVERIFY(fill_grids(days(1, 3)));
        QCOMPARE(rounds.by_first(2)[1], u"2"_s);
        QCOMPARE(rounds.by_first(3)[1], u"1"_s);
        QCOMPARE(rounds.by_first(5)[13], u" 2.33"_s);
        QCOMPARE(rounds.by_first(5)[20], u" 2.33"_s);
        // 3 + 1 + 1, 1 + 1 and 1 + 1 over seven putts, not cut.
        QCOMPARE(rounds.by_start(7)[11], u" 1.28571428571429"_s);
        QCOMPARE(rounds.by_start(7)[12], u"EXCELLENT"_s);
    }

    void a_mean_grade_of_exactly_3_7_has_an_empty_rating()
    {
        const stored_rounds rounds(1);
        // Grades of 24 for four putts, 10 for three and 3 for three.
        rounds.putts(1, 1, {60, 49, 24, 11});
        rounds.putts(1, 2, {60, 12, 3});
        rounds.putts(1, 3, {60, 1, 1});
        QVERIFY(fill_grids(days(1, 1)));
        QCOMPARE(rounds.by_start(7).mid(11, 2), (QStringList{u" 3.7"_s, QString()}));
    }

    void the_rounds_from_the_first_key_to_the_last_are_read_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::addColumn<int>("rounds");
        QTest::newRow("all rounds") << 1 << 4 << 4;
        QTest::newRow("in the middle") << 2 << 3 << 2;
        QTest::newRow("the same round twice") << 2 << 2 << 1;
    }
    void the_rounds_from_the_first_key_to_the_last_are_read()
    {
        QFETCH(int, from);
        QFETCH(int, to);
        QFETCH(int, rounds);
        const stored_rounds stored(4);
        for (int day = 1; day <= 4; ++day)
            stored.putts(day, 1, {10});
        QVERIFY(fill_grids(days(from, to)));
        QCOMPARE(stored.rounds_counted(), rounds);
        QCOMPARE(stored.by_first(1)[5].toInt(), rounds);
    }

    void if_the_filters_exclude_the_last_round_later_rounds_are_read_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::addColumn<int>("rounds");
        // Of seven days the odd ones pass.
        QTest::newRow("the last round passes") << 1 << 5 << 3;
        QTest::newRow("the last round does not pass") << 1 << 4 << 4;
        QTest::newRow("only the last round passes") << 2 << 3 << 1;
        QTest::newRow("neither the first nor the last one passes") << 2 << 4 << 3;
        QTest::newRow("no round of the range passes") << 4 << 4 << 2;
    }
    void if_the_filters_exclude_the_last_round_later_rounds_are_read()
    {
        QFETCH(int, from);
        QFETCH(int, to);
        const stored_rounds stored(7);
        for (int day = 1; day <= 7; ++day)
            stored.putts(day, 1, {10});
        selection_arguments chosen = days(from, to);
        chosen.weather_clause = u" (games2.conditionM = 1)"_s;
        QVERIFY(fill_grids(chosen));
        QTEST(stored.rounds_counted(), "rounds");
    }

    void if_the_first_key_has_no_round_the_next_round_is_the_first()
    {
        const stored_rounds rounds(3);
        rounds.putts(3, 1, {10});
        QVERIFY(fill_grids(open_putt_selection(u"20030101999999"_s, key_of_day(3))));
        QCOMPARE(rounds.rounds_counted(), 2);
    }

    void a_selection_without_a_round_leaves_the_grids_as_they_are_data()
    {
        QTest::addColumn<bool>("french");
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::newRow("no round after the first key, French") << true << 9 << 9;
        QTest::newRow("no round after the first key, English") << false << 9 << 9;
        QTest::newRow("reversed range, French") << true << 3 << 1;
        QTest::newRow("reversed range, English") << false << 3 << 1;
    }
    void a_selection_without_a_round_leaves_the_grids_as_they_are()
    {
        QFETCH(bool, french);
        QFETCH(int, from);
        QFETCH(int, to);
        const stored_rounds rounds(3, french);
        rounds.putts(3, 1, {10});
        QVERIFY(fill_grids(days(1, 3)));
        const auto before = rounds.grids();
        fill_without_result(days(from, to));
        QCOMPARE(rounds.grids(), before);
        QVERIFY(open_recordsets().isEmpty());
        QCOMPARE(data_environment().rsgames2.Source(), u"select * from games2"_s);
    }

    void rounds_without_putts_rewrite_the_grids_and_print_nothing()
    {
        const stored_rounds rounds(2);
        rounds.putts(1, 1, {10});
        QVERIFY(fill_grids(days(1, 1)));
        fill_without_result(days(2, 2));
        for (int k = 1; k <= 5; ++k)
            QCOMPARE(bands(rounds.by_first(k)), no_bands);
        QCOMPARE(rounds.by_first(5).mid(13, 8), QStringList(8, u" 0"_s));
        QCOMPARE(rounds.by_start(7).mid(11, 2), (QStringList{u" "_s, u"N/A"_s}));
        QCOMPARE(rounds.rounds_counted(), 1);
    }

    void a_sixth_putt_fails_data()
    {
        QTest::addColumn<int>("hole");
        QTest::newRow("hole 4") << 4;
        QTest::newRow("hole 18, whose next column is the temperature") << 18;
    }
    void a_sixth_putt_fails()
    {
        QFETCH(int, hole);
        const stored_rounds rounds(1);
        rounds.putts(1, hole, {60, 50, 40, 30, 20, 10});
        rounds.book.store.write(u"update games2 set temperature = 21"_s);
        const auto before = rounds.grids();
        QVERIFY(failure_of([] { fill_grids(days(1, 1)); }) == failure_kind::subscript);
        QCOMPARE(rounds.grids(), before);
    }

    void a_length_without_a_value_fails()
    {
        const stored_rounds rounds(1);
        rounds.putts(1, 1, {10});
        rounds.book.store.write(u"update games2 set putt_len_18_1 = null"_s);
        QVERIFY(failure_of([] { fill_grids(days(1, 1)); }) == failure_kind::invalid_null);
    }

    void grades_beyond_16_bits_are_an_overflow()
    {
        // 10 + 2 + 10 + 2 + 1 on each of 18 holes: 450 a round, 32,400 in 72 of them.
        const stored_rounds rounds(73);
        putts_everywhere(rounds.book.store, {4, 30, 4, 30, 4});
        QVERIFY(fill_grids(days(1, 72)));
        QCOMPARE(rounds.by_start(7)[11], u" 5"_s);
        QVERIFY(failure_of([] { fill_grids(days(1, 73)); }) == failure_kind::overflow);
    }

    void a_grid_without_one_of_its_rows_fails_data()
    {
        QTest::addColumn<QString>("grid");
        QTest::newRow("putts by first length") << u"s_put1"_s;
        QTest::newRow("where putts stop") << u"s_put2"_s;
    }
    void a_grid_without_one_of_its_rows_fails()
    {
        QFETCH(QString, grid);
        const stored_rounds rounds(1);
        rounds.putts(1, 1, {10});
        rounds.book.store.write(u"delete from "_s + grid + u" where rowid = (select max(rowid) from " + grid +
                                u')');
        QVERIFY(failure_of([] { fill_grids(days(1, 1)); }) == failure_kind::misuse);
    }

    void a_run_overwrites_every_figure()
    {
        const stored_rounds rounds(1);
        rounds.putts(1, 1, {20, 3});
        QVERIFY(fill_grids(days(1, 1)));
        const auto expected = rounds.grids();
        QStringList counts;
        QStringList means{u"mean_all = 'old'"_s};
        for (int j = 1; j <= putt_band_count; ++j) {
            counts << u"band_%1 = 99"_s.arg(j);
            means << u"mean_band_%1 = 'old'"_s.arg(j);
        }
        rounds.book.store.write(u"update s_put1 set "_s + (counts + means).join(u','));
        rounds.book.store.write(u"update s_put2 set weighted_mean = 'old', rating_text = 'old', "_s +
                                counts.join(u','));
        QVERIFY(fill_grids(days(1, 1)));
        QCOMPARE(rounds.grids(), expected);
    }

    void unused_columns_are_not_changed()
    {
        const stored_rounds rounds(1);
        rounds.putts(1, 1, {20, 3});
        const QStringList held{u"a line"_s, u"one"_s, u"two"_s, u"three"_s};
        for (const QString& grid : {u"s_put1"_s, u"s_put2"_s})
            rounds.book.store.write(u"update "_s + grid +
                                    u" set put_line = 'a line', put_spare_1 = 'one', put_spare_2 = 'two', "
                                    u"put_spare_3 = 'three'");
        QVERIFY(fill_grids(days(1, 1)));
        const auto rows = rounds.grids();
        QCOMPARE(rows.size(), 5 + 7);
        for (const QStringList& row : rows)
            QCOMPARE(row.mid(0, 1) + row.mid(8, 3), held);
    }

    void the_worst_rating_is_in_the_language_data() { both_languages(); }
    void the_worst_rating_is_in_the_language()
    {
        QFETCH(bool, french);
        const stored_rounds rounds(1, french);
        rounds.putts(1, 1, {60, 50});
        QVERIFY(fill_grids(days(1, 1)));
        QCOMPARE(rounds.by_start(7).mid(11, 2),
                 (QStringList{u" 4.5"_s, french ? u"ONT RÉELLEMENT BESOIN D'ÊTRE PRATIQUÉS"_s
                                                : u"You really need to practice"_s}));
    }
};

QTEST_MAIN(test_putt_statistics)
#include "test_putt_statistics.moc"
