#include <QTest>

#include "scoring/hole_shots.h"
#include "scoring/words.h"
#include "tests/scoring/shot_tables.h"
#include "tests/support/failures.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

const unit_words french_units{u"Pieds"_s, u"Verges"_s};
constexpr std::int16_t hole_length = 300;

void table_of_checks()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
}

}  // namespace

class test_hole_shots : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void units_are_read_in_both_languages_and_written_in_the_wanted_one()
    {
        for (const QStringView word : {u"Pieds", u"Feets"})
            QVERIFY(is_feet_word(word) && !is_yards_word(word));
        for (const QStringView word : {u"Verges", u"Yards"})
            QVERIFY(is_yards_word(word) && !is_feet_word(word));
        for (const QStringView word : {u"", u"pieds", u"Feet", u"Yard"})
            QVERIFY(!is_yards_word(word) && !is_feet_word(word));
        QCOMPARE(units_in(false).feet, u"Feets"_s);
        QCOMPARE(units_in(false).yards, u"Yards"_s);
        QCOMPARE(units_in(true).feet, u"Pieds"_s);
        QCOMPARE(units_in(true).yards, u"Verges"_s);
    }

    void the_check_fills_and_converts_the_rows_data()
    {
        table_of_checks();
        QTest::newRow("no row") << ""
                                << "";
        QTest::newRow("numbers and distances are carried on") << "L1 120 Verges\nA9 20 Verges"
                                                              << "1: 300>120 Verges\n2: 120>20 Verges";
        QTest::newRow("an empty distance is 0, an empty unit that of the kind")
            << "L1 120 -\nA9 - -\nP14 - -"
            << "1: 300>120 Verges\n2: 120>0 Pieds\n3: 0>0 Pieds";
        QTest::newRow("the shot before the first putt is converted to feet, the copied distance is not")
            << "L1 30 Verges\nP14 0 Pieds"
            << "1: 300>90 Pieds\n2: 30>0 Pieds";
        QTest::newRow("feet stay feet") << "L1 90 Pieds\nP14 0 Pieds"
                                        << "1: 300>90 Pieds\n2: 90>0 Pieds";
        QTest::newRow("a row of the other language is converted, too") << "L1 30 Yards\nP14 0 Feets"
                                                                       << "1: 300>90 Pieds\n2: 30>0 Feets";
        QTest::newRow("a row in feet of the other language is not converted again")
            << "L1 90 Feets\nP14 0 Pieds"
            << "1: 300>90 Feets\n2: 90>0 Pieds";
        QTest::newRow("a putt in yards before a putt is converted like any shot")
            << "A9 15 Pieds\nP14 2 Verges\nP14 0 Pieds"
            << "1: 300>15 Pieds\n2: 15>6 Pieds\n3: 2>0 Pieds";
        QTest::newRow("only the row right before the putt is converted")
            << "L1 50 Verges\nA9 10 Verges\nP14 3 Pieds"
            << "1: 300>50 Verges\n2: 50>30 Pieds\n3: 10>3 Pieds";
        QTest::newRow("holed from off the green") << "L1 60 Verges\nA9 0 Verges"
                                                  << "1: 300>60 Verges\n2: 60>0 Verges cal";
        QTest::newRow("the mark of a holed shot is not removed") << "L1 60 Verges cal"
                                                                 << "1: 300>60 Verges cal";
        QTest::newRow("a last shot in feet that is no putt is converted to yards")
            << "L1 60 Verges\nA9 90 Pieds"
            << "1: 300>60 Verges\n2: 60>30 Verges";
        QTest::newRow("to the nearest whole yard, down") << "A9 91 Feets"
                                                         << "1: 300>30 Verges";
        QTest::newRow("to the nearest whole yard, up") << "A9 92 Pieds"
                                                       << "1: 300>31 Verges";
        QTest::newRow("nothing left in feet is holed, in yards") << "A9 0 Pieds"
                                                                 << "1: 300>0 Verges cal";
        QTest::newRow("a single putt") << "P14 6 Pieds"
                                       << "1: 300>6 Pieds";
        QTest::newRow("a shot off the green after a putt does not change the row before")
            << "A9 90 Pieds\nP14 10 Pieds\nA9 5 Verges\nP14 0 Pieds"
            << "1: 300>90 Pieds\n2: 90>10 Pieds\n3: 10>15 Pieds\n4: 5>0 Pieds";
    }
    void the_check_fills_and_converts_the_rows()
    {
        QFETCH(QString, before);
        QFETCH(QString, after);
        shot_list rows = shots_of(before);
        const shots_check found = check_shots(rows, hole_length, french_units);
        QVERIFY(found.ok);
        QCOMPARE(found.incomplete, 0);
        QCOMPARE(lines_of(rows), after);
    }

    void the_check_ends_at_the_first_shot_without_club_or_kind_data()
    {
        table_of_checks();
        QTest::addColumn<int>("number");
        QTest::newRow("a blank hole") << "-0 - -"
                                      << "1: 300>0 Verges" << 1;
        QTest::newRow("no kind") << "L1 60 Verges\n-9 20 -\nP14 0 Verges"
                                 << "1: 300>60 Verges\n2: 60>20 Verges\n-: ->0 Verges" << 2;
        QTest::newRow("no club") << "L1 60 Verges\nA0 20 Verges"
                                 << "1: 300>60 Verges\n2: 60>20 Verges" << 2;
        QTest::newRow("a putt without its club converts nothing") << "A9 10 Verges\nP0 - -"
                                                                  << "1: 300>10 Verges\n2: 10>0 Pieds" << 2;
        QTest::newRow("the rows before it are filled and converted")
            << "A9 10 Verges\nP14 2 Pieds\n-0 - -"
            << "1: 300>30 Pieds\n2: 10>2 Pieds\n3: 2>0 Verges" << 3;
    }
    void the_check_ends_at_the_first_shot_without_club_or_kind()
    {
        QFETCH(QString, before);
        QFETCH(QString, after);
        QFETCH(int, number);
        shot_list rows = shots_of(before);
        const shots_check found = check_shots(rows, hole_length, french_units);
        QVERIFY(!found.ok);
        QCOMPARE(found.incomplete, number);
        QCOMPARE(lines_of(rows), after);
    }

    void a_second_check_converts_nothing()
    {
        shot_list rows = shots_of(u"L1 30 Verges\nP14 4 Pieds\nP14 0 Pieds"_s);
        check_shots(rows, hole_length, french_units);
        check_shots(rows, hole_length, french_units);
        QCOMPARE(lines_of(rows), u"1: 300>90 Pieds\n2: 90>4 Pieds\n3: 4>0 Pieds"_s);
    }

    void a_distance_in_feet_beyond_16_bits_is_an_overflow()
    {
        shot_list rows = shots_of(u"L1 10923 Verges\nP14 0 Pieds"_s);
        QCOMPARE(failure_of([&] { check_shots(rows, hole_length, french_units); }), failure_kind::overflow);
        rows = shots_of(u"L1 10922 Verges\nP14 0 Pieds"_s);
        QVERIFY(check_shots(rows, hole_length, french_units).ok);
        QCOMPARE(plain(*rows[0].after), 32766);
    }

    void the_next_shot_is_refused_after_an_incomplete_or_holed_one_data()
    {
        QTest::addColumn<QString>("rows");
        QTest::newRow("no kind") << "-1 60 Verges";
        QTest::newRow("no club") << "L0 60 Verges";
        QTest::newRow("no distance") << "L1 - Verges";
        QTest::newRow("holed") << "A9 10 Verges\nP14 0 Pieds";
    }
    void the_next_shot_is_refused_after_an_incomplete_or_holed_one()
    {
        QFETCH(QString, rows);
        shot_list shots = shots_of(rows);
        const QString before = lines_of(shots);
        QVERIFY(plan_next_shot(shots, french_units).refused);
        QCOMPARE(lines_of(shots), before);
    }

    void the_next_shot_prepares_the_rows_before_it_data()
    {
        table_of_checks();
        QTest::addColumn<bool>("putt_follows");
        QTest::addColumn<int>("distance");
        QTest::newRow("after a drive") << "L1 60 Verges"
                                       << "-: ->60 Verges" << false << 60;
        QTest::newRow("an empty unit is filled") << "L1 60 -"
                                                 << "-: ->60 Verges" << false << 60;
        QTest::newRow("of a putt, too") << "P14 6 -"
                                        << "-: ->6 Pieds" << true << 6;
        QTest::newRow("the shot before a putt is converted to feet")
            << "A9 10 Verges\nP14 6 Pieds"
            << "-: ->30 Pieds\n-: ->6 Pieds" << true << 6;
        QTest::newRow("once only") << "A9 30 Feets\nP14 6 Pieds"
                                   << "-: ->30 Pieds\n-: ->6 Pieds" << true << 6;
        QTest::newRow("without a unit it was in yards") << "A9 10 -\nP14 6 Pieds"
                                                        << "-: ->30 Pieds\n-: ->6 Pieds" << true << 6;
        QTest::newRow("a putt before a putt gets the unit only")
            << "P14 10 Verges\nP14 6 Pieds"
            << "-: ->10 Pieds\n-: ->6 Pieds" << true << 6;
        QTest::newRow("the shot before any other gets yards, its distance unchanged")
            << "A9 30 Pieds\nA9 6 Verges"
            << "-: ->30 Verges\n-: ->6 Verges" << false << 6;
    }
    void the_next_shot_prepares_the_rows_before_it()
    {
        QFETCH(QString, before);
        QFETCH(QString, after);
        QFETCH(bool, putt_follows);
        QFETCH(int, distance);
        shot_list rows = shots_of(before);
        const next_shot_plan plan = plan_next_shot(rows, french_units);
        QVERIFY(!plan.refused);
        QCOMPARE(plan.PUT_MODE, putt_follows);
        QCOMPARE(plain(plan.distance), distance);
        QCOMPARE(lines_of(rows), after);
    }

    void the_next_shot_clears_the_position_of_a_putt()
    {
        shot_list rows = shots_of(u"P14 6 Pieds"_s);
        plan_next_shot(rows, french_units);
        QCOMPARE(plain(rows[0].fairval), 0);
        QCOMPARE(rows[0].faireway, u" "_s);
    }
};

QTEST_APPLESS_MAIN(test_hole_shots)

#include "test_hole_shots.moc"
