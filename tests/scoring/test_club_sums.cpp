#include <QTest>

#include "scoring/club_sums.h"
#include "scoring/words.h"
#include "tests/support/failures.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// A shot with the driver, in yards.
club_shot shot_over(int before, int after)
{
    club_shot shot;
    shot.club = 1;
    shot.before = int16(before);
    shot.after = int16(after);
    shot.kind = long_shot;
    return shot;
}

club_shot in_feet(club_shot shot)
{
    shot.after_in_yards = false;
    return shot;
}

club_shot beyond(club_shot shot)
{
    shot.beyond_hole = true;
    return shot;
}

club_shot with_penalty(int penalty)
{
    club_shot shot = shot_over(200, 50);
    shot.penalty = int16(penalty);
    return shot;
}

club_sums sums_of(std::initializer_list<club_shot> shots)
{
    club_sums sums;
    for (const club_shot& shot : shots)
        sums.add(shot);
    return sums;
}

club_shot placed(int position)
{
    club_shot shot = shot_over(200, 50);
    shot.position = int16(position);
    return shot;
}

}  // namespace

class test_club_sums : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_distance_of_a_shot_is_the_length_before_it_less_the_rest_data()
    {
        QTest::addColumn<int>("before");
        QTest::addColumn<int>("after");
        QTest::addColumn<bool>("yards");
        QTest::addColumn<bool>("past");
        QTest::addColumn<int>("distance");
        QTest::newRow("a drive of 400 yards with 150 left") << 400 << 150 << true << false << 250;
        QTest::newRow("90 feet left of 300 yards") << 300 << 90 << false << false << 270;
        QTest::newRow("10 yards past the hole from 100") << 100 << 10 << true << true << 110;
        QTest::newRow("9 feet past the hole from 100 yards") << 100 << 9 << false << true << 103;
        QTest::newRow("a third of a yard is rounded") << 100 << 10 << false << false << 97;
        QTest::newRow("two thirds are rounded") << 100 << 8 << false << true << 103;
        QTest::newRow("backwards") << 100 << 120 << true << false << -20;
        QTest::newRow("holed") << 100 << 0 << false << false << 100;
    }
    void the_distance_of_a_shot_is_the_length_before_it_less_the_rest()
    {
        QFETCH(int, before);
        QFETCH(int, after);
        QFETCH(bool, yards);
        QFETCH(bool, past);
        club_shot shot = shot_over(before, after);
        shot.after_in_yards = yards;
        shot.beyond_hole = past;
        QTEST(plain(shot_distance(shot)), "distance");
    }

    void an_absent_rest_counts_as_0()
    {
        club_shot shot = shot_over(140, 0);
        shot.after.reset();
        QCOMPARE(plain(shot_distance(shot)), 140);
        QCOMPARE(plain(shot_distance(beyond(shot))), 140);
        QCOMPARE(plain(shot_distance(in_feet(shot))), 140);
        QCOMPARE(plain(shot_distance(in_feet(beyond(shot)))), 140);
    }

    void a_missing_length_before_the_shot_is_a_failure()
    {
        club_shot shot = shot_over(0, 10);
        shot.before.reset();
        QVERIFY(failure_of([&] { shot_distance(shot); }) == failure_kind::invalid_null);
    }

    void a_distance_beyond_16_bits_is_a_failure()
    {
        QVERIFY(failure_of([] { shot_distance(beyond(shot_over(32767, 1))); }) == failure_kind::overflow);
    }

    void a_shot_is_clean_unless_missed_in_sand_or_replayed_data()
    {
        QTest::addColumn<bool>("clean");
        QTest::newRow("plain") << true;
        QTest::newRow("missed") << false;
        QTest::newRow("sand") << false;
        QTest::newRow("no gain") << false;
        QTest::newRow("water stays clean") << true;
        QTest::newRow("a lost ball stays clean") << true;
        QTest::newRow("rules") << false;
        QTest::newRow("out of bounds") << false;
    }
    void a_shot_is_clean_unless_missed_in_sand_or_replayed()
    {
        const QString row = QString::fromLatin1(QTest::currentDataTag());
        club_shot shot = shot_over(200, 50);
        shot.missed = row == u"missed";
        shot.sand = row == u"sand";
        shot.no_gain = row == u"no gain";
        const QStringList penalties{QString(), u"water stays clean"_s, u"a lost ball stays clean"_s,
                                    u"rules"_s, u"out of bounds"_s};
        shot.penalty = int16(std::max(0, static_cast<int>(penalties.indexOf(row))));
        QTEST(is_clean(shot), "clean");
    }

    void a_missed_shot_counts_as_shot_and_missed_and_in_no_average()
    {
        club_shot missed = shot_over(400, 380);
        missed.missed = true;
        const club_sums sums = sums_of({missed, shot_over(300, 100)});
        QCOMPARE(plain(sums.shots), 2);
        QCOMPARE(plain(sums.clean_shots), 1);
        QCOMPARE(plain(sums.missed), 1);
        QCOMPARE(sums.distance_sum, 200.0);
        QCOMPARE(plain(sums.longest), 200);
    }

    void a_shot_into_the_water_counts_in_the_average_and_as_a_penalty()
    {
        const club_sums sums = sums_of({with_penalty(1)});
        QCOMPARE(plain(sums.clean_shots), 1);
        QCOMPARE(sums.distance_sum, 150.0);
        QCOMPARE(plain(sums.penalised), 1);
    }

    void every_kind_of_penalty_counts_as_a_penalty()
    {
        QCOMPARE(plain(sums_of({with_penalty(0), with_penalty(1), with_penalty(2), with_penalty(3),
                                with_penalty(4)})
                           .penalised),
                 4);
    }

    void a_shot_that_is_not_clean_needs_no_lengths()
    {
        club_shot shot;
        shot.missed = true;
        QCOMPARE(plain(sums_of({shot}).shots), 1);
    }

    void shots_end_in_the_fairway_left_or_right()
    {
        const club_sums sums =
            sums_of({placed(0), placed(1), placed(1), placed(2), placed(3), placed(3), placed(3)});
        QCOMPARE(plain(sums.in_fairway), 2);
        QCOMPARE(plain(sums.left), 1);
        QCOMPARE(plain(sums.right), 3);
    }

    void an_approach_with_nothing_left_is_holed_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("after");
        QTest::addColumn<int>("holed");
        QTest::newRow("an approach with nothing left") << approach_shot << 0 << 1;
        QTest::newRow("an approach with a foot left") << approach_shot << 1 << 0;
        QTest::newRow("a drive with nothing left") << long_shot << 0 << 0;
        QTest::newRow("an approach that has no rest yet") << approach_shot << -1 << 0;
    }
    void an_approach_with_nothing_left_is_holed()
    {
        QFETCH(int, kind);
        QFETCH(int, after);
        club_shot shot = shot_over(80, after);
        shot.kind = int16(kind);
        if (after < 0)
            shot.after.reset();
        QTEST(plain(sums_of({shot}).holed), "holed");
    }

    void the_longest_distance_is_at_least_0_the_sum_may_be_negative()
    {
        const club_sums sums = sums_of({shot_over(100, 130)});
        QCOMPARE(plain(sums.longest), 0);
        QCOMPARE(sums.distance_sum, -30.0);
    }

    void counts_beyond_16_bits_are_a_failure()
    {
        club_sums sums;
        sums.clean_shots = std::int16_t{32767};
        QVERIFY(failure_of([&] { sums.add(shot_over(200, 50)); }) == failure_kind::overflow);
        sums = {};
        sums.penalised = std::int16_t{32767};
        QVERIFY(failure_of([&] { sums.add(with_penalty(1)); }) == failure_kind::overflow);
    }

    void the_count_of_all_shots_may_exceed_16_bits()
    {
        club_shot missed = shot_over(200, 180);
        missed.missed = true;
        club_sums sums;
        sums.shots = 32767;
        sums.add(missed);
        QCOMPARE(plain(sums.shots), 32768);
    }

    void a_club_above_14_is_a_failure()
    {
        bag_sums bag;
        QCOMPARE(plain(bag[14].shots), 0);
        QVERIFY(failure_of([&] { bag[15].shots = 1; }) == failure_kind::subscript);
    }
};

QTEST_APPLESS_MAIN(test_club_sums)
#include "test_club_sums.moc"
