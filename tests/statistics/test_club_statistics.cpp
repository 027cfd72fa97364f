#include <QTest>

#include "boxes.h"
#include "club_statistics.h"
#include "DataEnvironment1.h"
#include "diary.h"
#include "failures.h"
#include "report_rows.h"
#include "report_store.h"
#include "selection_windows.h"
#include "store_folder.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

const QString columns = u"before, after, unit, fairval, penval, missed, shot_type_value"_s;

class stored_shots {
public:
    explicit stored_shots(int days, bool french = true) : folder(french), book(folder.path())
    {
        set_report_store(folder.path());
        const diary_course course = flat_course(u"PINS-0"_s, 4, u"70"_s, u"113"_s);
        book.add(course);
        for (int day = 1; day <= days; ++day)
            book.add(diary_round{key_of_day(day), course, holes_over(course.pars, 0), day % 2,
                                 day == 1 ? u"112-"_s : QString()});
    }

    void shot(int day, int club, const QString& values) const
    {
        put_shot(book.store, key_of_day(day), club, columns, values);
    }

    QStringList club(int number) const { return table_rows(book.store, u"stat_sticks"_s).at(number - 1); }

    store_folder folder;
    diary book;
};

selection_arguments days(int from, int to)
{
    return open_selection(key_of_day(from), key_of_day(to));
}

bool fill(const selection_arguments& chosen)
{
    run_progress no_bar;
    return Statistics::fill_stat_sticks(chosen, false, no_bar);
}

void answer_no_shots(hand& user)
{
    answer_plain(user,
                 u"Verdane n'a trouvé aucune ronde avec les conditions choisies. Verdane affichera seulement "
                 u"les statistiques sommaires.",
                 u"Verdane could not find any rounds with the chosen parameters. Verdane will display "
                 u"summary statistics only.");
}

void fill_in_vain(const selection_arguments& chosen)
{
    play([&] { QVERIFY(!fill(chosen)); }, answer_no_shots);
}

const QStringList zeros(9, u"0"_s);

}  // namespace

class test_club_statistics : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void every_club_has_its_line()
    {
        const stored_shots shots(1);
        shots.shot(1, 1, u"400, 150, 'Verges', 1, 0, 0, 1"_s);
        shots.shot(1, 1, u"400, 160, 'Yards', 2, 1, 0, 1"_s);
        shots.shot(1, 1, u"400, 395, 'Yards', 3, 0, 1, 1"_s);
        shots.shot(1, 13, u"60, 0, 'Pieds', 1, 0, 0, 2"_s);
        QVERIFY(fill(days(1, 1)));
        QCOMPARE(shots.club(1).mid(1, 9), (QStringList{u" 3"_s, u" 250"_s, u"245"_s, u" 33.3"_s, u" 33.3"_s,
                                                       u" 33.3"_s, u" 33.3"_s, u" 33.3"_s, u" 0%"_s}));
        QCOMPARE(shots.club(13).mid(1, 9), (QStringList{u" 1"_s, u" 60"_s, u"60"_s, u" 100%"_s, u" 0%"_s,
                                                        u" 0%"_s, u" 0%"_s, u" 0%"_s, u" 100%"_s}));
        for (int club = 2; club <= 12; ++club)
            QCOMPARE(shots.club(club).mid(1, 9), zeros);
        QVERIFY(open_recordsets().isEmpty());
    }

    void distances_are_read_in_the_unit_that_was_written_data()
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
    void distances_are_read_in_the_unit_that_was_written()
    {
        QFETCH(QString, unit);
        for (const bool french : {true, false}) {
            const stored_shots shots(1, french);
            shots.shot(1, 4, u"300, 90, "_s + unit + u", 1, 0, 0, 1"_s);
            QVERIFY(fill(days(1, 1)));
            QTEST(shots.club(4)[3], "average");
        }
    }

    void the_flags_of_a_shot_are_read()
    {
        const stored_shots shots(1);
        for (const QString& flag : {u"beyong_hole"_s, u"ts"_s, u"dz"_s})
            put_shot(shots.book.store, key_of_day(1), 2, flag + u", before, after, shot_type_value"_s,
                     u"1, 100, 10, 2"_s);
        QVERIFY(fill(days(1, 1)));
        QCOMPARE(shots.club(2).mid(1, 3), (QStringList{u" 3"_s, u" 110"_s, u"110"_s}));
    }

    void the_first_row_carries_the_texts_of_the_run_data() { both_languages(); }
    void the_first_row_carries_the_texts_of_the_run()
    {
        QFETCH(bool, french);
        const stored_shots shots(3, french);
        shots.shot(1, 1, u"400, 150, 'Yards', 1, 0, 0, 1"_s);
        shots.shot(3, 1, u"400, 150, 'Yards', 1, 0, 0, 1"_s);
        shots.shot(3, 1, u"400, 150, 'Yards', 1, 0, 0, 1"_s);
        QVERIFY(fill(days(1, 3)));
        // French in both languages.
        QCOMPARE(shots.club(1).mid(11), (QStringList{u"STATISTIQUES SUR VOS BÂTONS DE 2003-01-01 09:30:00"_s,
                                                     u"2003-01-01 09:30:00"_s, u"2003-01-03 09:30:00"_s,
                                                     u"ALL COURSES"_s, u"ALL PARTNERS"_s, u"ALL"_s, u"2"_s}));
    }

    void a_round_with_nothing_but_putts_adds_nothing()
    {
        const stored_shots shots(2);
        shots.shot(1, 14, u"20, 0, 'Pieds', 0, 0, 0, 3"_s);
        shots.shot(2, 1, u"400, 150, 'Verges', 1, 0, 0, 1"_s);
        QVERIFY(fill(days(1, 2)));
        QCOMPARE(shots.club(1)[17], u"1"_s);
    }

    void the_names_are_those_of_the_bag_and_the_putters_row_keeps_its_figures()
    {
        const stored_shots shots(1);
        shots.book.store.write({u"update sticknames set club_1 = 'Gros bois', club_14 = 'Balai'"_s,
                                u"update stat_sticks set average = 'kept' where rowid = 14"_s});
        shots.shot(1, 14, u"120, 20, 'Verges', 1, 0, 0, 2"_s);
        QVERIFY(fill(days(1, 1)));
        QCOMPARE(shots.club(1)[0], u"Gros bois"_s);
        QCOMPARE(shots.club(14)[0], u"Balai"_s);
        QCOMPARE(shots.club(14)[3], u"kept"_s);
    }

    void shots_without_a_club_count_for_none()
    {
        const stored_shots shots(1);
        shots.shot(1, 0, u"400, 150, 'Verges', 1, 0, 0, 1"_s);
        QVERIFY(fill(days(1, 1)));
        for (int club = 1; club <= 14; ++club)
            QCOMPARE(shots.club(club)[1], u"0"_s);
    }

    void a_club_above_14_ends_in_a_failure()
    {
        const stored_shots shots(1);
        shots.shot(1, 15, u"400, 150, 'Verges', 1, 0, 0, 1"_s);
        QVERIFY(failure_of([] { fill(days(1, 1)); }) == failure_kind::subscript);
        data_environment().rsStat_rounds.Close();
    }

    void without_a_shot_headings_names_and_zeros_are_written_data()
    {
        QTest::addColumn<bool>("french");
        QTest::addColumn<int>("from");
        QTest::newRow("no round so late, French") << true << 9;
        QTest::newRow("no round so late, English") << false << 9;
        QTest::newRow("the range runs backwards, French") << true << 2;
        QTest::newRow("the range runs backwards, English") << false << 2;
    }
    void without_a_shot_headings_names_and_zeros_are_written()
    {
        QFETCH(bool, french);
        QFETCH(int, from);
        const stored_shots shots(2, french);
        shots.shot(1, 1, u"400, 150, 'Verges', 1, 0, 0, 1"_s);
        QVERIFY(fill(days(1, 1)));
        shots.book.store.write(u"update sticknames set club_2 = 'Neu'"_s);
        fill_in_vain(days(from, 1));
        QCOMPARE(shots.club(1).mid(1, 9), zeros);
        QCOMPARE(shots.club(1)[17], u"0"_s);
        QCOMPARE(shots.club(1)[12], u"2003-01-0%1 09:30:00"_s.arg(from));
        QCOMPARE(shots.club(2)[0], u"Neu"_s);
        QVERIFY(open_recordsets().isEmpty());
        QCOMPARE(data_environment().rsStat_rounds.Source(), u"select * from Stat_rounds"_s);
    }

    void the_clauses_choose_the_rounds()
    {
        const stored_shots shots(2);
        shots.shot(1, 1, u"400, 150, 'Verges', 1, 0, 0, 1"_s);
        shots.shot(2, 1, u"400, 200, 'Verges', 1, 0, 0, 1"_s);
        selection_arguments chosen = days(1, 2);
        chosen.weather_clause = u" AND (games2.conditionM = 0)"_s;
        QVERIFY(fill(chosen));
        QCOMPARE(shots.club(1)[3], u"200"_s);
        chosen = days(1, 2);
        // A number is found inside a longer one too.
        chosen.partner_clause = u" AND INSTR(GAMES2.PARTNERS,'12')"_s;
        QVERIFY(fill(chosen));
        QCOMPARE(shots.club(1)[3], u"250"_s);
        chosen.course_clause = u" AND GAMES2.FC = 'PINS-1'"_s;
        fill_in_vain(chosen);
    }

    void a_silent_run_puts_the_shot_counts_into_the_row_of_averages()
    {
        const stored_shots shots(1);
        shots.shot(1, 1, u"400, 150, 'Verges', 1, 0, 0, 1"_s);
        shots.shot(1, 1, u"400, 395, 'Verges', 1, 0, 1, 1"_s);
        shots.shot(1, 13, u"60, 10, 'Verges', 1, 0, 0, 2"_s);
        Recordset& sticks = data_environment().rssticks;
        sticks.Open();
        sticks.MoveLast();
        Statistics::club_statistics(days(1, 1), {nullptr, true});
        QCOMPARE(plain(sticks.Fields(73).to_int16()), 1);
        QCOMPARE(plain(sticks.Fields(74).to_int16()), 0);
        QCOMPARE(plain(sticks.Fields(85).to_int16()), 1);
        QVERIFY(sticks.pending());
        QCOMPARE(shots.book.store.number(u"select shots_1 from sticks"_s), 0);
        sticks.CancelUpdate();
        sticks.Close();
    }

    void a_silent_run_without_shots_says_so_data() { both_languages(); }
    void a_silent_run_without_shots_says_so()
    {
        QFETCH(bool, french);
        const stored_shots shots(1, french);
        play([] { Statistics::club_statistics(days(1, 1), {}); }, answer_no_shots);
    }

    void the_bar_moves_through_its_values_and_the_report_opens_data() { both_languages(); }
    void the_bar_moves_through_its_values_and_the_report_opens()
    {
        QFETCH(bool, french);
        const stored_shots shots(1, french);
        shots.shot(1, 1, u"400, 150, 'Verges', 1, 0, 0, 1"_s);
        const auto steps = bar_in_selection_window(
            [](hand& user) {
                run(user, statistics_mode::club);
                close_report(user, statistics_mode::club);
                user.check(!user.visible(u"Status"_s), u"the bar is gone"_s);
            },
            statistics_mode::club);
        QCOMPARE(steps, (QList<bar_step>{{30, true}, {70, true}, {100, true}}));
        QCOMPARE(shots.club(1)[14], french ? u"TOUS LES TERRAINS"_s : u"ALL COURSES"_s);
        QCOMPARE(shots.club(1)[16], french ? u"Toutes"_s : u"ALL"_s);
    }

    void a_message_leaves_no_bar_and_no_report()
    {
        const stored_shots shots(1);
        in_selection_window(
            [](hand& user) {
                run(user, statistics_mode::club);
                answer_no_shots(user);
                user.check(!user.visible(u"Status"_s), u"the bar is gone"_s);
                user.check(!user.is_open(u"report_preview"_s), u"no report"_s);
            },
            statistics_mode::club);
    }
};

QTEST_MAIN(test_club_statistics)
#include "test_club_statistics.moc"
