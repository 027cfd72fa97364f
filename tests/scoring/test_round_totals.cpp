#include <QTest>

#include "scoring/round_totals.h"
#include "tests/support/failures.h"

using namespace verdane;
using testing::failure_of;

class test_round_totals : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_round_has_a_differential_data()
    {
        QTest::addColumn<int>("gross");
        QTest::addColumn<double>("rating");
        QTest::addColumn<double>("slope");
        QTest::addColumn<double>("figure");
        QTest::addColumn<QString>("text");
        QTest::newRow("above the rating") << 90 << 70.5 << 130.0 << 16.95 << "16.95";
        QTest::newRow("below the rating") << 60 << 70.0 << 113.0 << -10.0 << "-10";
        QTest::newRow("no slope") << 90 << 70.5 << 0.0 << 0.0 << "0";
        QTest::newRow("five characters only") << 85 << 70.1 << 121.0 << 14.9 * 113 / 121 << "13.91";
        QTest::newRow("five characters with a minus") << 60 << 70.0 << 121.0 << -10.0 * 113 / 121 << "-9.33";
        QTest::newRow("six digits before the point") << 2000 << 0.7 << 1.0 << 1999.3 * 113 << "22592";
        QTest::newRow("below one") << 71 << 70.5 << 113.0 << 0.5 << "0.5";
        QTest::newRow("not played") << 0 << 70.0 << 113.0 << -70.0 << "-70";
    }

    void a_round_has_a_differential()
    {
        QFETCH(int, gross);
        QFETCH(double, rating);
        QFETCH(double, slope);
        QTEST(differential(gross, rating, slope), "figure");
        QTEST(differential_text(differential(gross, rating, slope)), "text");
    }

    void the_net_score_subtracts_the_differential_rounded_down()
    {
        QCOMPARE(net_score(80, -1.2), 82.0);
        QCOMPARE(net_score(80, 1.9), 79.0);
        QCOMPARE(net_score(80, 2.0), 78.0);
        QCOMPARE(net_score(80, -2.0), 82.0);
    }

    void totals_add_up_hole_by_hole()
    {
        round_totals totals;
        totals.add_hole(5, 4);
        totals.add_hole(0, 3);
        totals.add_hole(4, 5);
        QCOMPARE(plain(totals.gross), 9);
        QCOMPARE(plain(totals.par), 12);
        QCOMPARE(plain(totals.over_par()), -3);
    }

    void a_total_beyond_16_bits_is_an_overflow()
    {
        round_totals strokes;
        strokes.add_hole(32767, 4);
        QVERIFY(failure_of([&] { strokes.add_hole(1, 4); }) == failure_kind::overflow);
        round_totals pars;
        pars.add_hole(4, 32767);
        QVERIFY(failure_of([&] { pars.add_hole(4, 1); }) == failure_kind::overflow);
        round_totals apart{32767, -1};
        QVERIFY(failure_of([&] { apart.over_par(); }) == failure_kind::overflow);
    }
};

QTEST_GUILESS_MAIN(test_round_totals)
#include "test_round_totals.moc"
