#include <QTest>

#include <algorithm>

#include "scoring/round_lines.h"
#include "scoring/round_sums.h"
#include "tests/support/failures.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// Strokes: long shots, approach shots, putts.
played_hole played(int long_shots, int approach, int putts, int par)
{
    played_hole hole;
    hole.long_shots = long_shots;
    hole.approach = approach;
    hole.putts = putts;
    hole.par = par;
    return hole;
}

/// The gross alone matters: one long shot, two putts, approach shots for the rest.
played_hole gross_on(int gross, int par)
{
    return played(1, gross - 3, 2, par);
}

/// One round with the same hole eighteen times.
void add_round_of(round_sums& sums, const played_hole& hole)
{
    sums.add_round();
    for (int h = 1; h <= hole_count; ++h)
        sums.add_hole(h, hole);
}

}  // namespace

class test_round_sums : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_hole_is_added_to_its_own_sums_and_to_no_other()
    {
        played_hole hole = gross_on(4, 4);
        hole.pen_water = 1;
        hole.pen_lost = 2;
        hole.pen_rule = 3;
        hole.pen_bounds = 4;
        hole.sand = 5;
        hole.missed = 6;
        hole.fairway = 7;
        round_sums sums;
        sums.add_hole(7, hole);
        sums.add_hole(7, hole);
        QCOMPARE(plain(sums.strokes[7].sum), 28);
        QCOMPARE(plain(sums.water[7].sum), 2);
        QCOMPARE(plain(sums.lost[7].sum), 4);
        QCOMPARE(plain(sums.rule[7].sum), 6);
        QCOMPARE(plain(sums.bounds[7].sum), 8);
        QCOMPARE(plain(sums.penalties[7].sum), 20);
        QCOMPARE(plain(sums.sand[7].sum), 10);
        QCOMPARE(plain(sums.missed[7].sum), 12);
        QCOMPARE(plain(sums.fairway[7].sum), 14);
        QCOMPARE(sums.over[7], 20.0);
        QCOMPARE(plain(sums.strokes[6].sum), 0);
        QCOMPARE(plain(sums.strokes[8].sum), 0);
    }

    void a_hole_that_was_not_played_counts_as_minus_its_par()
    {
        round_sums sums;
        sums.add_hole(1, played(0, 0, 0, 5));
        QCOMPARE(sums.over[1], -5.0);
        for (int i = 1; i <= class_count; ++i)
            QCOMPARE(plain(sums.classes[i][1].sum), 0);
        QCOMPARE(plain(sums.averaged[5][1].sum), 0);
    }

    void a_hole_is_counted_in_every_class_it_belongs_to_data()
    {
        QTest::addColumn<int>("long_shots");
        QTest::addColumn<int>("approach");
        QTest::addColumn<int>("putts");
        QTest::addColumn<int>("par");
        QTest::addColumn<QList<int>>("places");
        // The places: 1 par, 2 green in regulation, 3 to 5 its putts, 6 not in regulation, 7 to 9 its
        // putts, 10 up and down, 11 chip in, 12 to 14 pars by par, 18 hole in one, 19 to 24 double eagle
        // to triple.
        QTest::newRow("a par 4 as it should be") << 1 << 1 << 2 << 4 << QList<int>{1, 2, 4, 13};
        QTest::newRow("a par 4 saved with one putt") << 2 << 1 << 1 << 4 << QList<int>{1, 6, 7, 10, 13};
        QTest::newRow("a hole in one") << 1 << 0 << 0 << 3 << QList<int>{2, 11, 18, 20};
        QTest::newRow("a chip for a birdie on a par 5") << 1 << 3 << 0 << 5 << QList<int>{6, 11, 21};
        QTest::newRow("three putts for a bogey") << 1 << 1 << 3 << 4 << QList<int>{2, 5, 22};
        QTest::newRow("a double") << 2 << 2 << 2 << 4 << QList<int>{6, 8, 23};
        QTest::newRow("a triple with four putts") << 1 << 2 << 3 << 3 << QList<int>{6, 9, 24};
        QTest::newRow("a double eagle") << 1 << 1 << 0 << 5 << QList<int>{11, 6, 19};
        QTest::newRow("an eagle with one putt") << 1 << 1 << 1 << 5 << QList<int>{6, 7, 20};
        QTest::newRow("one putt in regulation") << 1 << 0 << 1 << 3 << QList<int>{2, 3, 21};
        QTest::newRow("a par 5 with one putt") << 2 << 2 << 1 << 5 << QList<int>{1, 6, 7, 10, 14};
        QTest::newRow("a par 3") << 1 << 0 << 2 << 3 << QList<int>{1, 2, 4, 12};
    }
    void a_hole_is_counted_in_every_class_it_belongs_to()
    {
        QFETCH(int, long_shots);
        QFETCH(int, approach);
        QFETCH(int, putts);
        QFETCH(int, par);
        QFETCH(QList<int>, places);
        const played_hole hole = played(long_shots, approach, putts, par);
        round_sums sums;
        sums.add_hole(18, hole);
        QList<int> seen;
        for (int i = 1; i <= class_count; ++i) {
            const bool average = i >= 15 && i <= 17;
            if (!average && plain(sums.classes[i][18].sum) == 1)
                seen << i;
        }
        std::sort(places.begin(), places.end());
        QCOMPARE(seen, places);
        for (int p = 3; p <= 5; ++p) {
            QCOMPARE(plain(sums.averaged[p][18].sum), p == par ? 1 : 0);
            QCOMPARE(plain(sums.classes[p + 12][18].sum), p == par ? plain(hole_gross(hole)) : 0);
        }
    }

    void means_of_a_hole_are_whole_with_ties_to_even_data()
    {
        QTest::addColumn<QList<int>>("strokes");
        QTest::addColumn<double>("mean");
        QTest::newRow("7 over 2 rounds") << QList<int>{3, 4} << 4.0;
        QTest::newRow("5 over 2 rounds") << QList<int>{2, 3} << 2.0;
        QTest::newRow("9 over 2 rounds") << QList<int>{4, 5} << 4.0;
        QTest::newRow("11 over 2 rounds") << QList<int>{5, 6} << 6.0;
        QTest::newRow("10 over 3 rounds") << QList<int>{3, 3, 4} << 3.0;
        QTest::newRow("11 over 3 rounds") << QList<int>{3, 4, 4} << 4.0;
        QTest::newRow("one round not played counts in no mean") << QList<int>{0, 5} << 5.0;
        QTest::newRow("never played") << QList<int>{0, 0} << 0.0;
    }
    void means_of_a_hole_are_whole_with_ties_to_even()
    {
        QFETCH(QList<int>, strokes);
        QFETCH(double, mean);
        round_sums sums;
        for (const int gross : strokes)
            sums.add_hole(2, played(gross, 0, 0, 3));
        QCOMPARE(average_line(sums, 3).holes[2], mean);
        QCOMPARE(class_holes(sums, 15)[2], mean);
    }

    void the_means_of_the_nines_are_not_rounded_and_divide_by_the_holes_played()
    {
        round_sums sums;
        sums.add_hole(1, gross_on(4, 3));
        sums.add_hole(1, gross_on(3, 3));
        sums.add_hole(9, gross_on(6, 3));
        sums.add_hole(10, gross_on(5, 3));
        sums.add_hole(11, gross_on(9, 4));
        const stats_line line = average_line(sums, 3);
        QCOMPARE(line.front_nine, 13.0 / 3);
        QCOMPARE(line.back_nine, 5.0);
        QCOMPARE(line.all_holes, 18.0 / 4);
        QCOMPARE(line.holes[11], 0.0);
        const stats_line fours = average_line(sums, 4);
        QCOMPARE(fours.front_nine, 0.0);
        QCOMPARE(fours.back_nine, 9.0);
        QCOMPARE(fours.all_holes, 9.0);
    }

    void a_hole_with_different_pars_on_two_courses_counts_in_the_mean_of_each_par()
    {
        round_sums sums;
        sums.add_hole(5, gross_on(3, 3));
        sums.add_hole(5, gross_on(6, 4));
        sums.add_hole(5, gross_on(5, 4));
        QCOMPARE(average_line(sums, 3).holes[5], 3.0);
        QCOMPARE(average_line(sums, 4).holes[5], 6.0);
        QCOMPARE(average_line(sums, 4).all_holes, 5.5);
        QCOMPARE(average_line(sums, 5).all_holes, 0.0);
    }

    void the_total_of_the_strokes_is_a_sum_for_one_round_and_a_mean_for_several()
    {
        round_sums sums;
        add_round_of(sums, gross_on(4, 4));
        QCOMPARE(strokes_line(sums).all_holes, 72.0);
        QCOMPARE(average_mark(sums), u" "_s);
        add_round_of(sums, gross_on(5, 4));
        const stats_line line = strokes_line(sums);
        QCOMPARE(line.holes[1], 9.0);
        QCOMPARE(line.front_nine, 81.0);
        QCOMPARE(line.back_nine, 81.0);
        QCOMPARE(line.all_holes, 81.0);
        QCOMPARE(average_mark(sums), u"0"_s);
    }

    void strokes_over_par_are_a_mean_per_round()
    {
        round_sums sums;
        QCOMPARE(over_line(sums).all_holes, 0.0);
        add_round_of(sums, gross_on(4, 4));
        add_round_of(sums, gross_on(5, 4));
        add_round_of(sums, gross_on(4, 4));
        const stats_line line = over_line(sums);
        QCOMPARE(line.holes[3], 1.0 / 3);
        QCOMPARE(line.front_nine, 3.0);
        QCOMPARE(line.all_holes, 6.0);
    }

    void without_a_round_the_lines_are_0_and_the_mark_is_blank()
    {
        const round_sums sums;
        for (int h = 1; h <= hole_count; ++h) {
            QCOMPARE(strokes_line(sums).holes[h], 0.0);
            QCOMPARE(over_line(sums).holes[h], 0.0);
        }
        QCOMPARE(strokes_line(sums).all_holes, 0.0);
        QCOMPARE(average_mark(sums), u" "_s);
    }

    void the_detail_of_a_hole_has_its_counts_its_penalties_and_its_shots_over_par()
    {
        const detailed_hole hole{1, 2, 3, 10, 20, 30, 40, 4.5, 9, 2, 7};
        QCOMPARE(detail_figures(hole), (std::array<double, 9>{1, 2, 3, 10, 20, 30, 40, 100, 6.5}));
    }

    void both_nines_and_their_total_are_added_as_decimals()
    {
        by_hole<double> holes;
        holes[1] = 0.5;
        holes[9] = 0.25;
        holes[10] = 2;
        const stats_line line = totalled(holes);
        QCOMPARE(line.front_nine, 0.75);
        QCOMPARE(line.back_nine, 2.0);
        QCOMPARE(line.all_holes, 2.75);
    }

    void a_total_beyond_16_bits_is_an_overflow()
    {
        by_hole<tally> sums;
        sums[1].add(32766);
        sums[18].add(1);
        QCOMPARE(line_of(sums).all_holes, 32767.0);
        sums[18].add(1);
        QCOMPARE(failure_of([&] { line_of(sums); }), failure_kind::overflow);
    }

    void a_nine_beyond_16_bits_is_an_overflow()
    {
        by_hole<tally> sums;
        sums[1].add(32767);
        QCOMPARE(line_of(sums).front_nine, 32767.0);
        sums[2].add(1);
        QCOMPARE(failure_of([&] { line_of(sums); }), failure_kind::overflow);
    }

    void strokes_of_a_hole_beyond_16_bits_are_an_overflow()
    {
        round_sums sums;
        sums.add_hole(1, played(32767, 0, 0, 4));
        QCOMPARE(failure_of([&] { sums.add_hole(1, played(1, 0, 0, 4)); }), failure_kind::overflow);
        QCOMPARE(failure_of([&] { sums.add_hole(2, played(32767, 1, 0, 4)); }), failure_kind::overflow);
    }
};

QTEST_APPLESS_MAIN(test_round_sums)
#include "test_round_sums.moc"
