#include <QTest>

#include "store/DataEnvironment1.h"
#include "tests/statistics/report_rows.h"
#include "tests/statistics/stored_shots.h"
#include "tests/support/failures.h"
#include "tests/support/window_look.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

class test_club_lines : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void every_club_has_its_row()
    {
        const stored_shots shots(1);
        shots.shot(1, 1, u"400, 150, 'Verges', 1, 0, 0, 1"_s);
        shots.shot(1, 1, u"400, 160, 'Yards', 2, 1, 0, 1"_s);
        shots.shot(1, 1, u"400, 395, 'Yards', 3, 0, 1, 1"_s);
        shots.shot(1, 13, u"60, 0, 'Pieds', 1, 0, 0, 2"_s);
        QVERIFY(fill_clubs(rounds_of_days(1, 1)));
        QCOMPARE(shots.club(1).mid(1, 9), (QStringList{u" 3"_s, u" 250"_s, u"245"_s, u" 33.3"_s, u" 33.3"_s,
                                                       u" 33.3"_s, u" 33.3"_s, u" 33.3"_s, u" 0%"_s}));
        QCOMPARE(shots.club(13).mid(1, 9), (QStringList{u" 1"_s, u" 60"_s, u"60"_s, u" 100%"_s, u" 0%"_s,
                                                        u" 0%"_s, u" 0%"_s, u" 0%"_s, u" 100%"_s}));
        for (int club = 2; club <= 12; ++club)
            QCOMPARE(shots.club(club).mid(1, 9), zeros);
        QVERIFY(open_recordsets().isEmpty());
    }

    void distances_are_read_in_the_unit_of_their_shot_data()
    {
        QTest::addColumn<QString>("unit");
        QTest::addColumn<QString>("average");
        QTest::newRow("French yards") << u"'Verges'"_s << u"210"_s;
        QTest::newRow("English yards") << u"'Yards'"_s << u"210"_s;
        QTest::newRow("French feet") << u"'Pieds'"_s << u"270"_s;
        QTest::newRow("English feet") << u"'Feets'"_s << u"270"_s;
        QTest::newRow("anything else is feet") << u"'yards'"_s << u"270"_s;
        QTest::newRow("none is yards") << u"null"_s << u"210"_s;
    }
    void distances_are_read_in_the_unit_of_their_shot()
    {
        QFETCH(QString, unit);
        for (const bool french : {true, false}) {
            const stored_shots shots(1, french);
            shots.shot(1, 4, u"300, 90, "_s + unit + u", 1, 0, 0, 1"_s);
            QVERIFY(fill_clubs(rounds_of_days(1, 1)));
            QTEST(shots.club(4)[3], "average");
        }
    }

    void shots_entered_in_both_languages_are_added_up_in_one_selection()
    {
        const stored_shots shots(2);
        for (const int day : {1, 2})
            for (const QString& unit : {u"Verges"_s, u"Yards"_s, u"Pieds"_s, u"Feets"_s})
                shots.shot(day, 4, u"300, 90, '"_s + unit + u"', 1, 0, 0, 1");
        QVERIFY(fill_clubs(rounds_of_days(1, 2)));
        QCOMPARE(shots.club(4).mid(1, 3), (QStringList{u" 8"_s, u" 270"_s, u"240"_s}));
    }

    void an_absent_rest_is_0_and_no_holed_shot()
    {
        const stored_shots shots(1);
        shots.shot(1, 5, u"140, null, 'Verges', 1, 0, 0, 2"_s);
        shots.shot(1, 5, u"130, null, null, 1, 0, 0, 2"_s);
        shots.shot(1, 5, u"120, null, 'Pieds', 1, 0, 0, 2"_s);
        QVERIFY(fill_clubs(rounds_of_days(1, 1)));
        QCOMPARE(shots.club(5).mid(1, 3), (QStringList{u" 3"_s, u" 140"_s, u"130"_s}));
        // An unknown remaining distance does not count as holed.
        QCOMPARE(shots.club(5)[9], u" 0%"_s);
    }

    void a_clean_shot_without_its_length_fails()
    {
        const stored_shots shots(1);
        shots.shot(1, 5, u"null, 10, 'Verges', 1, 0, 0, 2"_s);
        QVERIFY(failure_of([] { fill_clubs(rounds_of_days(1, 1)); }) == failure_kind::invalid_null);
        data_environment().rsStat_rounds.Close();
    }

    void a_code_that_is_null_counts_as_0()
    {
        const stored_shots shots(1);
        put_shot(shots.book.store, key_of_day(1), 6,
                 u"before, after, fairval, penval, missed, ts, dz, beyong_hole, shot_type_value"_s,
                 u"150, 10, null, null, null, null, null, null, 0"_s);
        QVERIFY(fill_clubs(rounds_of_days(1, 1)));
        QCOMPARE(shots.club(6).mid(1, 9), (QStringList{u" 1"_s, u" 140"_s, u"140"_s, u" 0%"_s, u" 0%"_s,
                                                       u" 0%"_s, u" 0%"_s, u" 0%"_s, u" 0%"_s}));
    }

    void the_flags_of_a_shot_are_read()
    {
        const stored_shots shots(1);
        for (const QString& flag : {u"beyong_hole"_s, u"ts"_s, u"dz"_s})
            put_shot(shots.book.store, key_of_day(1), 2, flag + u", before, after, shot_type_value"_s,
                     u"1, 100, 10, 2"_s);
        QVERIFY(fill_clubs(rounds_of_days(1, 1)));
        QCOMPARE(shots.club(2).mid(1, 3), (QStringList{u" 3"_s, u" 110"_s, u"110"_s}));
    }

    void a_round_with_putts_only_is_not_counted()
    {
        const stored_shots shots(2);
        shots.shot(1, 14, u"20, 0, 'Pieds', 0, 0, 0, 3"_s);
        shots.shot(2, 1, u"400, 150, 'Verges', 1, 0, 0, 1"_s);
        QVERIFY(fill_clubs(rounds_of_days(1, 2)));
        QCOMPARE(shots.club(1)[17], u"1"_s);
    }

    void the_names_are_those_of_the_bag_and_the_figures_of_the_putter_are_not_changed()
    {
        const stored_shots shots(1);
        shots.book.store.write({u"update sticknames set club_1 = 'Gros bois', club_14 = 'Balai'"_s,
                                u"update stat_sticks set average = 'kept' where rowid = 14"_s});
        shots.shot(1, 14, u"120, 20, 'Verges', 1, 0, 0, 2"_s);
        QVERIFY(fill_clubs(rounds_of_days(1, 1)));
        QCOMPARE(shots.club(1)[0], u"Gros bois"_s);
        QCOMPARE(shots.club(14)[0], u"Balai"_s);
        QCOMPARE(shots.club(14)[3], u"kept"_s);
    }

    void shots_without_a_club_count_for_no_club()
    {
        const stored_shots shots(1);
        shots.shot(1, 0, u"400, 150, 'Verges', 1, 0, 0, 1"_s);
        QVERIFY(fill_clubs(rounds_of_days(1, 1)));
        for (int club = 1; club <= 14; ++club)
            QCOMPARE(shots.club(club)[1], u"0"_s);
    }

    void an_unknown_club_fails_data()
    {
        QTest::addColumn<int>("club");
        QTest::newRow("above 14") << 15;
        QTest::newRow("below 0") << -1;
    }
    void an_unknown_club_fails()
    {
        QFETCH(int, club);
        const stored_shots shots(1);
        shots.shot(1, club, u"400, 150, 'Verges', 1, 0, 0, 1"_s);
        QVERIFY(failure_of([] { fill_clubs(rounds_of_days(1, 1)); }) == failure_kind::subscript);
        data_environment().rsStat_rounds.Close();
    }
};

QTEST_MAIN(test_club_lines)
#include "test_club_lines.moc"
