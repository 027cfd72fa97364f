#include <QTest>

#include "scoring/putt_figures.h"
#include "tests/support/failures.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

constexpr int places = 108;

/// Lengths of a round: those given from a hole on, every other place 0. One place more than the holes
/// have, as in the row of a round.
QList<int> lengths_from(int hole, const QList<int>& lengths)
{
    QList<int> all(places + 1, 0);
    for (int i = 0; i < lengths.size(); ++i)
        all[6 * (hole - 1) + i] = lengths[i];
    return all;
}

putt_counts scan(const QList<int>& lengths)
{
    return scan_round_putts([&lengths](int place) { return int16(lengths.at(place)); });
}

int by_first(const putt_counts& counts, int putts, int band)
{
    return plain(counts.putts_by_first[putts][band].sum);
}

int by_start(const putt_counts& counts, int start, int stop)
{
    return plain(counts.stop_by_start[start][stop].sum);
}

int holes_counted(const putt_counts& counts)
{
    int holes = 0;
    for (int putts = 1; putts <= most_putts_counted; ++putts)
        holes += plain(totals_of(counts).row_total[putts].sum);
    return holes;
}

putt_figures figures_of(const putt_counts& counts)
{
    return {counts, means_of(counts, totals_of(counts)), graded_putts(counts), putt_count(counts)};
}

}  // namespace

class test_putt_counts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void two_putts_from_20_feet_are_average()
    {
        const putt_figures figures = figures_of(scan(lengths_from(1, {20, 3, 0})));
        QVERIFY(figures.counts.any_putt);
        QCOMPARE(by_first(figures.counts, 2, 4), 1);
        QCOMPARE(by_start(figures.counts, 4, 6), 1);
        QCOMPARE(by_start(figures.counts, 7, 7), 1);
        QCOMPARE(holes_counted(figures.counts), 1);
        QCOMPARE(plain(figures.graded), 4);
        QCOMPARE(plain(figures.putts), 2);
        QCOMPARE(figures.score(), 2.0);
        QCOMPARE(figures.rating().in(true), u"MOYEN"_s);
        QCOMPARE(figures.rating().in(false), u"Average"_s);
    }

    void a_holed_putt_of_4_feet_is_excellent()
    {
        const putt_figures figures = figures_of(scan(lengths_from(18, {4})));
        QCOMPARE(by_first(figures.counts, 1, 7), 1);
        QCOMPARE(by_start(figures.counts, 7, 7), 1);
        QCOMPARE(figures.score(), 1.0);
        QCOMPARE(figures.rating().in(false), u"EXCELLENT"_s);
    }

    void one_foot_left_after_50_has_the_best_grade()
    {
        const putt_counts counts = scan(lengths_from(7, {50, 1}));
        QCOMPARE(by_start(counts, 1, 7), 1);
        QCOMPARE(putt_grade(1, 7), 1);
    }

    void every_putt_counts_and_the_last_one_stops_in_the_band_of_0_feet()
    {
        const putt_counts counts = scan(lengths_from(3, {60, 30, 12, 6, 2}));
        QCOMPARE(by_first(counts, 5, 1), 1);
        const QList<QList<int>> stops{{1, 1}, {3, 4}, {5, 5}, {6, 6}, {7, 7}};
        for (const auto& stop : stops)
            QCOMPARE(by_start(counts, stop[0], stop[1]), 1);
        QCOMPARE(plain(putt_count(counts)), 5);
    }

    void holes_without_a_first_putt_count_nowhere_data()
    {
        QTest::addColumn<QList<int>>("lengths");
        QTest::newRow("no length at all") << QList<int>{};
        QTest::newRow("a second length without a first") << QList<int>{0, 12};
        QTest::newRow("a length below 0") << QList<int>{-4, 12};
    }
    void holes_without_a_first_putt_count_nowhere()
    {
        QFETCH(QList<int>, lengths);
        const putt_counts counts = scan(lengths_from(5, lengths));
        QVERIFY(!counts.any_putt);
        QCOMPARE(plain(putt_count(counts)), 0);
        QCOMPARE(holes_counted(counts), 0);
        QCOMPARE(figures_of(counts).rating().in(true), u"N/A"_s);
    }

    void a_length_below_0_ends_a_hole()
    {
        const putt_counts counts = scan(lengths_from(1, {12, -2, 7}));
        QCOMPARE(by_first(counts, 1, 5), 1);
        QCOMPARE(plain(putt_count(counts)), 1);
    }

    void a_sixth_putt_fails_data()
    {
        QTest::addColumn<QList<int>>("lengths");
        QTest::newRow("on a hole before the last") << lengths_from(4, {60, 50, 40, 30, 20, 10});
        QTest::newRow("followed by the lengths of the next hole") << lengths_from(4, QList<int>(13, 9));
        QTest::newRow("on the last hole, on a day of 0 degrees")
            << lengths_from(18, {60, 50, 40, 30, 20, 10});
    }
    void a_sixth_putt_fails()
    {
        QFETCH(QList<int>, lengths);
        QVERIFY(failure_of([&] { scan(lengths); }) == failure_kind::subscript);
    }

    void after_six_lengths_reading_continues_until_a_length_of_0()
    {
        QList<int> places_read;
        const QList<int> lengths = lengths_from(18, {6, 5, 4, 3, 2, 1, 21});
        QVERIFY(failure_of([&] {
                    scan_round_putts([&](int place) {
                        places_read << place;
                        return int16(place < lengths.size() ? lengths.at(place) : 0);
                    });
                }) == failure_kind::subscript);
        // The column after the lengths is the temperature, here 21. A 0 after it ends the walk.
        QCOMPARE(places_read.last(), places + 1);
        QVERIFY(places_read.contains(places));
    }

    void only_needed_lengths_are_read()
    {
        int calls = 0;
        scan_round_putts([&calls](int) {
            ++calls;
            return int16(0);
        });
        QCOMPARE(calls, 18);
    }

    void the_counts_of_several_rounds_are_added()
    {
        putt_counts sums;
        sums.add(scan(lengths_from(1, {})));
        QVERIFY(!sums.any_putt);
        sums.add(scan(lengths_from(1, {20, 3})));
        sums.add(scan(lengths_from(2, {20, 3})));
        sums.add(scan(lengths_from(3, {})));
        QVERIFY(sums.any_putt);
        QCOMPARE(by_first(sums, 2, 4), 2);
        QCOMPARE(by_start(sums, 4, 6), 2);
    }

    void means_are_over_the_holes_of_a_band_and_over_all()
    {
        putt_counts counts;
        counts.putts_by_first[1][7].add(3);
        counts.putts_by_first[2][7].add(1);
        counts.putts_by_first[3][1].add(2);
        counts.putts_by_first[5][1].add(1);
        const putt_means means = means_of(counts, totals_of(counts));
        QCOMPARE(means.mean_band[7], 5.0 / 4);
        QCOMPARE(means.mean_band[1], 11.0 / 3);
        QCOMPARE(means.mean_band[2], 0.0);
        QCOMPARE(means.mean_all, 16.0 / 7);
    }

    void means_without_holes_are_0()
    {
        const putt_counts none;
        QCOMPARE(means_of(none, totals_of(none)).mean_all, 0.0);
    }

    void grades_beyond_16_bits_are_a_failure()
    {
        putt_counts counts;
        counts.stop_by_start[7][1].add(3276);
        QCOMPARE(plain(graded_putts(counts)), 32760);
        counts.stop_by_start[7][7].add(7);
        QCOMPARE(plain(graded_putts(counts)), 32767);
        counts.stop_by_start[7][7].add(1);
        QVERIFY(failure_of([&] { graded_putts(counts); }) == failure_kind::overflow);
    }

    void holes_beyond_16_bits_are_a_failure_data()
    {
        QTest::addColumn<int>("putts");
        QTest::addColumn<int>("band");
        QTest::newRow("of one band") << 2 << 1;
        QTest::newRow("with one number of putts") << 1 << 2;
    }
    void holes_beyond_16_bits_are_a_failure()
    {
        QFETCH(int, putts);
        QFETCH(int, band);
        putt_counts counts;
        counts.putts_by_first[1][1].add(32000);
        counts.putts_by_first[putts][band].add(767);
        totals_of(counts);
        counts.putts_by_first[putts][band].add(1);
        QVERIFY(failure_of([&] { totals_of(counts); }) == failure_kind::overflow);
    }

    void holes_of_all_bands_beyond_16_bits_are_a_failure()
    {
        putt_counts counts;
        counts.putts_by_first[1][1].add(32000);
        counts.putts_by_first[2][2].add(767);
        means_of(counts, totals_of(counts));
        counts.putts_by_first[3][3].add(1);
        QVERIFY(failure_of([&] { means_of(counts, totals_of(counts)); }) == failure_kind::overflow);
    }

    void counts_beyond_16_bits_are_a_failure()
    {
        putt_counts counts;
        counts.stop_by_start[1][7].add(32767);
        putt_counts one_more;
        one_more.stop_by_start[1][7].add(1);
        QVERIFY(failure_of([&] { counts.add(one_more); }) == failure_kind::overflow);
    }
};

QTEST_APPLESS_MAIN(test_putt_counts)
#include "test_putt_counts.moc"
