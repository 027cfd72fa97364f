#include <QTest>

#include "scoring/hole_summary.h"
#include "tests/scoring/shot_tables.h"
#include "tests/support/failures.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// "long approach putts | fairway sand missed recovery | water lost rules bounds"
QString figures_of(const hole_summary& sum)
{
    const auto line = [](std::initializer_list<int16> counts) {
        QStringList numbers;
        for (const int16 count : counts)
            numbers << QString::number(plain(count));
        return numbers.join(u' ');
    };
    const hole_counts& c = sum.counts;
    return line({c.long_shots, c.approach, c.putts}) + u" | " +
           line({c.fairway, c.sand, c.missed, c.recovery}) + u" | " +
           line({c.pen_water, c.pen_lost, c.pen_rule, c.pen_bounds});
}

QString putts_of(const hole_summary& sum)
{
    QStringList lengths;
    for (const int16 length : sum.putt_lengths)
        lengths << QString::number(plain(length));
    return lengths.join(u' ');
}

}  // namespace

class test_hole_summary : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_summary_counts_the_shots_data()
    {
        QTest::addColumn<QString>("rows");
        QTest::addColumn<QString>("figures");
        QTest::addColumn<QString>("putts");
        QTest::addColumn<bool>("detailed");
        QTest::newRow("no shot") << ""
                                 << "0 0 0 | 0 0 0 0 | 0 0 0 0"
                                 << "0 0 0 0 0 0" << false;
        QTest::newRow("a blank shot adds nothing, although its position is the fairway")
            << "-0 - -"
            << "0 0 0 | 0 0 0 0 | 0 0 0 0"
            << "0 0 0 0 0 0" << false;
        QTest::newRow("a shot without a kind counts in no box")
            << "L1 120 Verges\n-9 40 Verges missed sand zero pen=1"
            << "1 0 0 | 1 0 0 0 | 0 0 0 0"
            << "0 0 0 0 0 0" << true;
        QTest::newRow("drive, approach, two putts") << "L1 120 Verges\nA9 30 Pieds\nP14 4 Pieds\nP14 0 Pieds"
                                                    << "1 1 2 | 2 0 0 0 | 0 0 0 0"
                                                    << "30 4 0 0 0 0" << true;
        QTest::newRow("only the fairway itself counts as fairway")
            << "L1 200 Verges\nL1 150 Verges fair=2\nL1 100 Verges fair=3\nL1 50 Verges\nA9 9 Verges"
            << "4 1 0 | 3 0 0 0 | 0 0 0 0"
            << "0 0 0 0 0 0" << true;
        QTest::newRow("situations") << "L1 90 Verges missed\nL1 60 Verges sand zero\nA9 5 Verges sand missed"
                                    << "2 1 0 | 3 2 2 1 | 0 0 0 0"
                                    << "0 0 0 0 0 0" << true;
        QTest::newRow("penalties, one a shot") << "L1 90 Verges pen=1\nL1 80 Verges pen=2\nL1 70 Verges "
                                                  "pen=3\nL1 60 Verges pen=4\nA9 5 Verges pen=1"
                                               << "4 1 0 | 5 0 0 0 | 2 1 1 1"
                                               << "0 0 0 0 0 0" << true;
        QTest::newRow("a hole that starts with a putt has a first putt of no length")
            << "P14 9 Pieds\nP14 0 Pieds"
            << "0 0 2 | 0 0 0 0 | 0 0 0 0"
            << "0 9 0 0 0 0" << true;
        QTest::newRow("a shot of another kind after a putt has a length, too")
            << "A9 20 Pieds\nP14 12 Pieds\nA9 3 Pieds\nP14 0 Pieds"
            << "0 2 2 | 2 0 0 0 | 0 0 0 0"
            << "20 12 3 0 0 0" << true;
        QTest::newRow("a length of 0 ends the list") << "A9 20 Pieds\nP14 - Pieds\nP14 5 Pieds\nP14 0 Pieds"
                                                     << "0 1 3 | 1 0 0 0 | 0 0 0 0"
                                                     << "20 0 0 0 0 0" << true;
        QTest::newRow("the seventh putt is counted and has no length")
            << "A9 70 Pieds\nP14 60 Pieds\nP14 50 Pieds\nP14 40 Pieds\nP14 30 Pieds\nP14 20 Pieds\nP14 10 "
               "Pieds\nP14 5 Pieds"
            << "0 1 7 | 1 0 0 0 | 0 0 0 0"
            << "70 60 50 40 30 20" << true;
        QTest::newRow("after the sixth length everything else is still counted")
            << "A9 70 Pieds\nP14 60 Pieds\nP14 50 Pieds\nP14 40 Pieds\nP14 30 Pieds\nP14 20 Pieds\nP14 10 "
               "Pieds\nP14 5 Pieds missed\nP14 4 Pieds pen=3"
            << "0 1 8 | 1 0 1 0 | 0 0 1 0"
            << "70 60 50 40 30 20" << true;
    }
    void the_summary_counts_the_shots()
    {
        QFETCH(QString, rows);
        QFETCH(QString, figures);
        QFETCH(QString, putts);
        QFETCH(bool, detailed);
        shot_list shots = shots_of(rows);
        const hole_summary sum = summarise(shots);
        QCOMPARE(figures_of(sum), figures);
        QCOMPARE(putts_of(sum), putts);
        QCOMPARE(sum.isdetailed, detailed);
    }

    void the_summary_clears_the_position_of_a_putt()
    {
        shot_list rows = shots_of(u"A9 20 Pieds fair=2\nP14 0 Pieds fair=1\nP14 0 Pieds fair=3"_s);
        for (hole_shot& row : rows)
            row.faireway = u"Fairway"_s;
        const hole_summary sum = summarise(rows);
        QCOMPARE(plain(sum.counts.fairway), 0);
        QCOMPARE(plain(rows[0].fairval), 2);
        QCOMPARE(plain(rows[1].fairval), 0);
        QCOMPARE(plain(rows[2].fairval), 0);
        // The text is cleared together with the code.
        QCOMPARE(rows[0].faireway, u"Fairway"_s);
        QCOMPARE(rows[1].faireway, u" "_s);
        QCOMPARE(rows[2].faireway, u" "_s);
    }

    void an_unknown_kind_or_penalty_fails_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("penalty");
        QTest::newRow("kind 4") << 4 << 0;
        QTest::newRow("kind -1") << -1 << 0;
        QTest::newRow("penalty 5") << 1 << 5;
        QTest::newRow("penalty -1") << 1 << -1;
    }
    void an_unknown_kind_or_penalty_fails()
    {
        QFETCH(int, kind);
        QFETCH(int, penalty);
        shot_list rows(1);
        rows[0].shot_type_value = kind;
        rows[0].penval = penalty;
        QCOMPARE(failure_of([&] { summarise(rows); }), failure_kind::subscript);
    }
};

QTEST_APPLESS_MAIN(test_hole_summary)

#include "test_hole_summary.moc"
