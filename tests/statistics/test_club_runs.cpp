#include <QApplication>
#include <QProgressBar>
#include <QTest>

#include "statistics/club_statistics.h"
#include "store/DataEnvironment1.h"
#include "tests/statistics/selection_windows.h"
#include "tests/statistics/stored_shots.h"
#include "tests/support/hand_widgets.h"
#include "tests/support/window_look.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

class test_club_runs : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_run_replaces_the_figures_of_the_run_before()
    {
        const stored_shots shots(2);
        shots.shot(1, 1, u"400, 150, 'Verges', 1, 0, 0, 1"_s);
        shots.shot(2, 2, u"400, 200, 'Verges', 1, 0, 0, 1"_s);
        QVERIFY(fill_clubs(rounds_of_days(1, 1)));
        QVERIFY(fill_clubs(rounds_of_days(2, 2)));
        QCOMPARE(shots.club(1).mid(1, 9), zeros);
        QCOMPARE(shots.club(2)[3], u"200"_s);
        QCOMPARE(shots.club(1)[17], u"1"_s);
    }

    void the_first_row_contains_the_texts_of_the_run_data() { both_languages(); }
    void the_first_row_contains_the_texts_of_the_run()
    {
        QFETCH(bool, french);
        const stored_shots shots(3, french);
        shots.shot(1, 1, u"400, 150, 'Yards', 1, 0, 0, 1"_s);
        shots.shot(3, 1, u"400, 150, 'Yards', 1, 0, 0, 1"_s);
        shots.shot(3, 1, u"400, 150, 'Yards', 1, 0, 0, 1"_s);
        QVERIFY(fill_clubs(rounds_of_days(1, 3)));
        // French in both languages.
        QCOMPARE(shots.club(1).mid(11), (QStringList{u"STATISTIQUES SUR VOS BÂTONS DE 2003-01-01 09:30:00"_s,
                                                     u"2003-01-01 09:30:00"_s, u"2003-01-03 09:30:00"_s,
                                                     u"ALL COURSES"_s, u"ALL PARTNERS"_s, u"ALL"_s, u"2"_s}));
    }

    void without_a_shot_headings_names_and_zeros_are_written_data()
    {
        QTest::addColumn<bool>("french");
        QTest::addColumn<int>("from");
        QTest::newRow("no round after the first key, French") << true << 9;
        QTest::newRow("no round after the first key, English") << false << 9;
        QTest::newRow("reversed range, French") << true << 2;
        QTest::newRow("reversed range, English") << false << 2;
    }
    void without_a_shot_headings_names_and_zeros_are_written()
    {
        QFETCH(bool, french);
        QFETCH(int, from);
        const stored_shots shots(2, french);
        shots.shot(1, 1, u"400, 150, 'Verges', 1, 0, 0, 1"_s);
        QVERIFY(fill_clubs(rounds_of_days(1, 1)));
        shots.book.store.write(u"update sticknames set club_2 = 'Neu'"_s);
        fill_without_result(rounds_of_days(from, 1));
        QCOMPARE(shots.club(1).mid(1, 9), zeros);
        QCOMPARE(shots.club(1)[17], u"0"_s);
        QCOMPARE(shots.club(1)[12], u"2003-01-0%1 09:30:00"_s.arg(from));
        QCOMPARE(shots.club(2)[0], u"Neu"_s);
        QVERIFY(open_recordsets().isEmpty());
        QCOMPARE(data_environment().rsStat_rounds.Source(), u"select * from Stat_rounds"_s);
    }

    void the_clauses_select_the_rounds()
    {
        const stored_shots shots(2);
        shots.shot(1, 1, u"400, 150, 'Verges', 1, 0, 0, 1"_s);
        shots.shot(2, 1, u"400, 200, 'Verges', 1, 0, 0, 1"_s);
        selection_arguments chosen = rounds_of_days(1, 2);
        chosen.weather_clause = u" AND (games2.conditionM = 0)"_s;
        QVERIFY(fill_clubs(chosen));
        QCOMPARE(shots.club(1)[3], u"200"_s);
        chosen = rounds_of_days(1, 2);
        // A number is found inside a longer one too.
        chosen.partner_clause = u" AND INSTR(GAMES2.PARTNERS,'12')"_s;
        QVERIFY(fill_clubs(chosen));
        QCOMPARE(shots.club(1)[3], u"250"_s);
        chosen.course_clause = u" AND GAMES2.FC = 'PINS-1'"_s;
        fill_without_result(chosen);
    }

    void with_store_counts_the_shot_counts_are_written_to_the_row_of_averages()
    {
        const stored_shots shots(1);
        shots.shot(1, 1, u"400, 150, 'Verges', 1, 0, 0, 1"_s);
        shots.shot(1, 1, u"400, 395, 'Verges', 1, 0, 1, 1"_s);
        shots.shot(1, 13, u"60, 10, 'Verges', 1, 0, 0, 2"_s);
        // An approach with the putter has no figures in the report, but is counted here.
        shots.shot(1, 14, u"40, 10, 'Verges', 1, 0, 0, 2"_s);
        shots.shot(1, 14, u"40, 0, 'Pieds', 0, 0, 0, 3"_s);
        Recordset& sticks = data_environment().rssticks;
        sticks.Open();
        sticks.MoveLast();
        Statistics::club_statistics(rounds_of_days(1, 1), {nullptr, true});
        for (int ordinal = 73; ordinal <= 86; ++ordinal)
            QCOMPARE(plain(sticks.Fields(ordinal).to_int16()),
                     ordinal == 73 || ordinal == 85 || ordinal == 86 ? 1 : 0);
        QVERIFY(sticks.pending());
        QCOMPARE(shots.book.store.number(u"select shots_1 from sticks"_s), 0);
        sticks.CancelUpdate();
        sticks.Close();
    }

    void a_silent_run_without_shots_shows_the_message_data() { both_languages(); }
    void a_silent_run_without_shots_shows_the_message()
    {
        QFETCH(bool, french);
        const stored_shots shots(1, french);
        play([] { Statistics::club_statistics(rounds_of_days(1, 1), {}); }, answer_no_shots);
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
                user.check(!user.visible(u"Status"_s), u"the bar is hidden"_s);
            },
            statistics_mode::club);
        QCOMPARE(steps, (QList<bar_step>{{30, true}, {70, true}, {100, true}}));
        QCOMPARE(shots.club(1)[14], french ? u"TOUS LES TERRAINS"_s : u"ALL COURSES"_s);
        QCOMPARE(shots.club(1)[16], french ? u"Toutes"_s : u"ALL"_s);
    }

    void without_store_counts_the_shot_counts_are_not_changed()
    {
        const stored_shots shots(1);
        shots.shot(1, 1, u"400, 150, 'Verges', 1, 0, 0, 1"_s);
        shots.book.store.write(u"update sticks set shots_1 = 7"_s);
        QVERIFY(fill_clubs(rounds_of_days(1, 1)));
        QCOMPARE(shots.book.store.number(u"select shots_1 from sticks"_s), 7);
    }

    void without_shots_the_message_follows_the_table_and_the_bar_and_no_report_opens_data()
    {
        both_languages();
    }
    void without_shots_the_message_follows_the_table_and_the_bar_and_no_report_opens()
    {
        QFETCH(bool, french);
        const stored_shots shots(1, french);
        shots.book.store.write(u"update stat_sticks set shot_count = ' 9'"_s);
        const auto steps = bar_in_selection_window(
            [&](hand& user) {
                run(user, statistics_mode::club);
                user.wait_until(u"the message"_s,
                                [] { return QApplication::activeModalWidget() != active_form(); });
                user.look([&] {
                    auto& window = dynamic_cast<f_date_range&>(*active_form());
                    QVERIFY(!find_control<QProgressBar>(window, u"Status"_s).isVisible());
                    QCOMPARE(shots.club(1)[1], u"0"_s);
                    QVERIFY(open_recordsets().isEmpty());
                    // The report was set up before anything was computed.
                    QVERIFY(window.cr1().ReportFileName().endsWith(french ? u"\\r_statSticks.rpt"_s
                                                                          : u"\\r_statSticks_en.rpt"_s));
                });
                answer_no_shots(user);
                user.check(!user.is_open(u"report_preview"_s), u"no report"_s);
            },
            statistics_mode::club);
        QCOMPARE(steps, (QList<bar_step>{{30, true}, {70, true}, {100, true}}));
    }
};

QTEST_MAIN(test_club_runs)
#include "test_club_runs.moc"
