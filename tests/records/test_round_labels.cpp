#include <QTest>

#include "records/Round_functions.h"

using namespace verdane;

class test_round_labels : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_round_has_a_differential_and_labels_data()
    {
        QTest::addColumn<int>("gross");
        QTest::addColumn<int>("par");
        QTest::addColumn<double>("rating");
        QTest::addColumn<double>("slope");
        QTest::addColumn<double>("wanted");
        QTest::addColumn<QStringList>("labels");
        const auto labels = [](const char* hand, const char* brut, const char* net, const char* plus) {
            return QStringList{QString::fromLatin1(hand), QString::fromLatin1(brut), QString::fromLatin1(net),
                               QString::fromLatin1(plus)};
        };
        QTest::newRow("above the rating")
            << 90 << 72 << 70.5 << 130.0 << 16.95 << labels("16.95", "90", "74", "18");
        QTest::newRow("below the rating")
            << 60 << 72 << 70.0 << 113.0 << -10.0 << labels("-10", "60", "70", "-12");
        QTest::newRow("no slope") << 90 << 72 << 70.5 << 0.0 << 0.0 << labels("0", "90", "90", "18");
        QTest::newRow("whole part downwards")
            << 70 << 70 << 71.2 << 113.0 << (70 - 71.2) << labels("-1.2", "70", "72", "0");
        QTest::newRow("five characters only")
            << 85 << 71 << 70.1 << 121.0 << 14.9 * 113 / 121 << labels("13.91", "85", "72", "14");
        QTest::newRow("five characters with a minus")
            << 60 << 72 << 70.0 << 121.0 << -10.0 * 113 / 121 << labels("-9.33", "60", "70", "-12");
        QTest::newRow("six digits before the point")
            << 2000 << 72 << 0.7 << 1.0 << 1999.3 * 113 << labels("22592", "2000", "-223920", "1928");
        QTest::newRow("below one") << 71 << 71 << 70.5 << 113.0 << 0.5 << labels("0.5", "71", "71", "0");
        QTest::newRow("not played") << 0 << 72 << 70.0 << 113.0 << -70.0 << labels("-70", "0", "70", "-72");
    }

    void a_round_has_a_differential_and_labels()
    {
        QFETCH(int, gross);
        QFETCH(int, par);
        QFETCH(double, rating);
        QFETCH(double, slope);
        QFETCH(double, wanted);
        const double d = differential(gross, rating, slope);
        QCOMPARE(d, wanted);
        const auto shown = Round_functions::labels_of({{gross, par}, d});
        QTEST((QStringList{shown.l_hand, shown.l_brut, shown.l_net, shown.l_plus}), "labels");
    }
};

QTEST_GUILESS_MAIN(test_round_labels)
#include "test_round_labels.moc"
