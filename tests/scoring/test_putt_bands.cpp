#include <QTest>

#include "base/language.h"
#include "scoring/putt_bands.h"

using namespace verdane;
using namespace Qt::StringLiterals;

class test_putt_bands : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_length_before_a_putt_has_its_band_data()
    {
        QTest::addColumn<int>("feet");
        QTest::addColumn<int>("band");
        const QList<QList<int>> rows{{32767, 1}, {50, 1}, {49, 2}, {40, 2}, {39, 3}, {30, 3},
                                     {29, 4},    {20, 4}, {19, 5}, {10, 5}, {9, 6},  {5, 6},
                                     {4, 7},     {1, 7},  {0, 7},  {-3, 7}};
        for (const auto& row : rows)
            QTest::addRow("%d feet", row[0]) << row[0] << row[1];
    }
    void the_length_before_a_putt_has_its_band()
    {
        QFETCH(int, feet);
        QTEST(first_putt_band(feet), "band");
    }

    void the_length_after_a_putt_has_its_band_data()
    {
        QTest::addColumn<int>("feet");
        QTest::addColumn<int>("band");
        const QList<QList<int>> rows{{50, 1}, {25, 1}, {24, 2}, {20, 2}, {19, 3}, {15, 3}, {14, 4}, {10, 4},
                                     {9, 5},  {5, 5},  {4, 6},  {2, 6},  {1, 7},  {0, 7},  {-1, 7}};
        for (const auto& row : rows)
            QTest::addRow("%d feet", row[0]) << row[0] << row[1];
    }
    void the_length_after_a_putt_has_its_band()
    {
        QFETCH(int, feet);
        QTEST(after_putt_band(feet), "band");
    }

    void every_pair_of_bands_has_its_grade()
    {
        // A line for each band of the stop, a column for each band of the start.
        const QList<QList<int>> grades{{8, 9, 10, 10, 10, 10, 10}, {7, 8, 9, 10, 10, 10, 10},
                                       {5, 6, 8, 9, 10, 10, 10},   {4, 5, 6, 7, 8, 9, 10},
                                       {3, 4, 5, 6, 7, 8, 9},      {1, 2, 2, 3, 5, 5, 6},
                                       {1, 1, 1, 1, 1, 1, 1}};
        for (int stop = 1; stop <= putt_band_count; ++stop) {
            for (int start = 1; start <= putt_band_count; ++start)
                QCOMPARE(putt_grade(start, stop), grades[stop - 1][start - 1]);
        }
    }

    void a_mean_grade_has_its_rating_data()
    {
        QTest::addColumn<double>("score");
        QTest::addColumn<int>("putts");
        QTest::addColumn<QString>("french");
        QTest::addColumn<QString>("english");
        QTest::newRow("no putt") << 0.0 << 0 << "N/A"
                                 << "N/A";
        QTest::newRow("the best") << 1.0 << 5 << "EXCELLENT"
                                  << "EXCELLENT";
        QTest::newRow("below 1.5") << 1.4999 << 5 << "EXCELLENT"
                                   << "EXCELLENT";
        QTest::newRow("1.5") << 1.5 << 2 << "BON"
                             << "Good";
        QTest::newRow("2.0 is not below 2.0") << 2.0 << 2 << "MOYEN"
                                              << "Average";
        QTest::newRow("2.5") << 2.5 << 2 << "PASSABLE"
                             << "Acceptable";
        QTest::newRow("3.0") << 3.0 << 1 << u"MÉDIOCRE"_s << "MEDIOCRE";
        QTest::newRow("below 3.7") << 3.6999 << 9 << u"MÉDIOCRE"_s << "MEDIOCRE";
        QTest::newRow("exactly 3.7, as 37 over 10") << 37.0 / 10 << 10 << ""
                                                    << "";
        QTest::newRow("above 3.7") << 3.7001 << 9 << u"ONT RÉELLEMENT BESOIN D'ÊTRE PRATIQUÉS"_s
                                   << "You really need to practice";
    }
    void a_mean_grade_has_its_rating()
    {
        QFETCH(double, score);
        QFETCH(int, putts);
        const text_pair words = putt_rating(score, putts);
        QTEST(words.in(true), "french");
        QTEST(words.in(false), "english");
    }
};

QTEST_APPLESS_MAIN(test_putt_bands)
#include "test_putt_bands.moc"
