#include <QTest>

#include <array>

#include "scoring/handicap.h"

using namespace verdane;

class test_handicap : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_number_of_rounds_gives_the_number_of_differentials_that_count_data()
    {
        QTest::addColumn<int>("rounds");
        QTest::addColumn<int>("take");
        constexpr std::array<int, 41> ladder = {0,  0,  0,  0,  0,  1,  2,  2,  3,  3,  4,  4,  5,  5,
                                                6,  6,  7,  7,  8,  9,  10, 10, 10, 10, 10, 10, 10, 10,
                                                10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10};
        for (int rounds = 0; rounds <= 40; ++rounds)
            QTest::addRow("%d rounds", rounds) << rounds << ladder[static_cast<std::size_t>(rounds)];
        QTest::newRow("366 rounds") << 366 << 10;
        QTest::newRow("the largest count") << 32767 << 10;
        QTest::newRow("a count below zero") << -1 << 0;
    }

    void the_number_of_rounds_gives_the_number_of_differentials_that_count()
    {
        QFETCH(int, rounds);
        QTEST(plain(handicap_take(rounds)), "take");
    }

    void a_handicap_is_rounded_to_a_tenth_and_shown_as_text_data()
    {
        QTest::addColumn<int>("take");
        QTest::addColumn<double>("sum");
        QTest::addColumn<QString>("text");
        QTest::newRow("one, without the factor") << 1 << 10.44 << " 10.4";
        QTest::newRow("two, with the factor") << 2 << 10.0 + 12.0 << " 10.6";
        QTest::newRow("a tie is rounded to even") << 1 << 12.25 << " 12.2";
        QTest::newRow("a tie is rounded up to even") << 1 << 12.75 << " 12.8";
        QTest::newRow("5.65, whose double is above the tie") << 1 << 5.65 << " 5.7";
        QTest::newRow("-5.65, whose double is below the tie") << 1 << -5.65 << "-5.7";
        QTest::newRow("-16.95, whose double is nearer to 0") << 1 << -16.95 << "-16.9";
        QTest::newRow("0.05, whose double is above the tie") << 1 << 0.05 << " .1";
        QTest::newRow("whole") << 1 << 12.0 << " 12";
        QTest::newRow("below one") << 1 << 0.5 << " .5";
        QTest::newRow("ten") << 10 << 155.0 << " 14.9";
        QTest::newRow("negative") << 2 << -5.0 << "-2.4";
        QTest::newRow("negative, below one") << 1 << -0.5 << "-.5";
        QTest::newRow("no round counts") << 0 << 0.0 << "N/A";
        QTest::newRow("no round counts, whatever the sum") << 0 << 25.0 << "N/A";
        QTest::newRow("exactly zero") << 3 << 0.0 << "N/A";
        QTest::newRow("rounds to zero") << 1 << 0.04 << "N/A";
        QTest::newRow("rounds to zero from below") << 1 << -0.04 << "N/A";
    }

    void a_handicap_is_rounded_to_a_tenth_and_shown_as_text()
    {
        QFETCH(int, take);
        QFETCH(double, sum);
        QTEST(handicap_text(take, sum), "text");
    }
};

QTEST_GUILESS_MAIN(test_handicap)
#include "test_handicap.moc"
