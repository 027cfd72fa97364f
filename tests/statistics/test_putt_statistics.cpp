#include <QTest>

#include "boxes.h"
#include "DataEnvironment1.h"
#include "diary.h"
#include "failures.h"
#include "putt_statistics.h"
#include "report_preview.h"
#include "report_rows.h"
#include "report_store.h"
#include "round_putt_report.h"
#include "selection_windows.h"
#include "store_folder.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// A store with rounds on the first days of a year, without putt lengths.
class stored_rounds {
public:
    explicit stored_rounds(int days, bool french = true) : folder(french), book(folder.path())
    {
        set_report_store(folder.path());
        const diary_course course = flat_course(u"PINS-0"_s, 4, u"70"_s, u"113"_s);
        book.add(course);
        for (int day = 1; day <= days; ++day)
            book.add(diary_round{key_of_day(day), course, holes_over(course.pars, 0), day % 2, {}});
    }

    void putts(int day, int hole, const QList<int>& lengths) const
    {
        put_putts(book.store, key_of_day(day), hole, lengths);
    }

    QStringList by_first(int row) const { return table_rows(book.store, u"s_put1"_s).at(row - 1); }
    QStringList by_start(int row) const { return table_rows(book.store, u"s_put2"_s).at(row - 1); }

    store_folder folder;
    diary book;
};

selection_arguments days(int from, int to)
{
    return open_putt_selection(key_of_day(from), key_of_day(to));
}

bool fill(const selection_arguments& chosen)
{
    run_progress no_bar;
    return Statistics::fill_putt_tables(chosen, no_bar);
}

void answer_no_putts(hand& user)
{
    answer_plain(user, u"Verdane n'a trouvé aucune ronde détaillée avec les conditions choisies",
                 u"Verdane could not find any detailed rounds with the chosen parameters.");
}

/// Fills the tables of a selection that has nothing to print.
void fill_in_vain(const selection_arguments& chosen)
{
    play([&] { QVERIFY(!fill(chosen)); }, answer_no_putts);
}

QStringList bands(const QStringList& row)
{
    return row.mid(1, 7);
}

QStringList only(int band, const QString& count)
{
    QStringList counts(7, u"0"_s);
    counts[band - 1] = count;
    return counts;
}

const QStringList no_bands(7, u"0"_s);

}  // namespace

class test_putt_statistics : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void two_putts_from_20_feet_fill_both_grids_data() { both_languages(); }
    void two_putts_from_20_feet_fill_both_grids()
    {
        QFETCH(bool, french);
        const stored_rounds rounds(1, french);
        rounds.putts(1, 5, {20, 3});
        QVERIFY(fill(days(1, 1)));
        for (int k = 1; k <= 5; ++k)
            QCOMPARE(bands(rounds.by_first(k)), k == 2 ? only(4, u"1"_s) : no_bands);
        for (int k = 1; k <= 4; ++k)
            QCOMPARE(rounds.by_first(k).mid(13, 8), QStringList(8, u" "_s));
        QCOMPARE(rounds.by_first(5).mid(13, 8),
                 (QStringList{u" 0"_s, u" 0"_s, u" 0"_s, u" 2"_s, u" 0"_s, u" 0"_s, u" 0"_s, u" 2"_s}));
        for (int i = 1; i <= 7; ++i) {
            QCOMPARE(bands(rounds.by_start(i)), i == 4   ? only(6, u"1"_s)
                                                : i == 7 ? only(7, u"1"_s)
                                                         : no_bands);
            QCOMPARE(rounds.by_start(i).mid(11, 2),
                     i == 7 ? (QStringList{u" 2"_s, french ? u"MOYEN"_s : u"Average"_s})
                            : (QStringList{u" "_s, u" "_s}));
        }
    }

    void the_first_rows_carry_the_texts_of_the_run_data() { both_languages(); }
    void the_first_rows_carry_the_texts_of_the_run()
    {
        QFETCH(bool, french);
        const stored_rounds rounds(3, french);
        rounds.putts(2, 1, {9});
        QVERIFY(fill(days(1, 3)));
        QCOMPARE(rounds.by_first(1).mid(11, 2),
                 (QStringList{u"2003-01-01 09:30:00"_s, u"2003-01-03 09:30:00"_s}));
        // Rounds walked, also those without lengths.
        QCOMPARE(rounds.by_first(1).mid(23),
                 (QStringList{u"ALL"_s, u"ALL PARTNERS"_s, u"ALL COURSES"_s, u"3"_s}));
        QCOMPARE(rounds.by_first(1).mid(21, 2),
                 french ? (QStringList{u"Distance de la balle au trou"_s,
                                       u"Distance de la balle au trou après le coup"_s})
                        : (QStringList{u"Ball-To-Hole Distance"_s, u"Ball-To-Hole Distance after shot "_s}));
        QCOMPARE(rounds.by_start(1).mid(13, 2),
                 french ? (QStringList{u"Distance de la balle au trou après le coup"_s,
                                       u"Distance de la balle au trou"_s})
                        : (QStringList{u"Ball-To-Hole Distance after shot"_s, u"Ball-To-Hole Distance"_s}));
    }

    void rounds_add_up_and_means_are_cut()
    {
        const stored_rounds rounds(3);
        rounds.putts(1, 1, {50, 5, 1});
        rounds.putts(2, 1, {50, 1});
        rounds.putts(3, 1, {50, 3});
        QVERIFY(fill(days(1, 3)));
        QCOMPARE(rounds.by_first(2)[1], u"2"_s);
        QCOMPARE(rounds.by_first(3)[1], u"1"_s);
        QCOMPARE(rounds.by_first(5)[13], u" 2.33"_s);
        QCOMPARE(rounds.by_first(5)[20], u" 2.33"_s);
        // 3 + 1 + 1, 1 + 1 and 1 + 1 over seven putts, not cut.
        QCOMPARE(rounds.by_start(7)[11], u" 1.28571428571429"_s);
        QCOMPARE(rounds.by_start(7)[12], u"EXCELLENT"_s);
    }

    void a_mean_grade_of_exactly_3_7_has_no_words()
    {
        const stored_rounds rounds(1);
        // Grades of 24 for four putts, 10 for three and 3 for three.
        rounds.putts(1, 1, {60, 49, 24, 11});
        rounds.putts(1, 2, {60, 12, 3});
        rounds.putts(1, 3, {60, 1, 1});
        QVERIFY(fill(days(1, 1)));
        QCOMPARE(rounds.by_start(7).mid(11, 2), (QStringList{u" 3.7"_s, QString()}));
    }

    void the_walk_ends_with_the_round_of_the_last_key()
    {
        const stored_rounds rounds(4);
        for (int day = 1; day <= 4; ++day)
            rounds.putts(day, 1, {10});
        QVERIFY(fill(days(2, 3)));
        QCOMPARE(rounds.by_first(1)[26], u"2"_s);
        QCOMPARE(rounds.by_first(1)[5], u"2"_s);
    }

    void where_the_filters_keep_the_last_round_out_later_ones_are_taken_in()
    {
        const stored_rounds rounds(7);
        for (int day = 1; day <= 7; ++day)
            rounds.putts(day, 1, {10});
        selection_arguments chosen = days(1, 4);
        // Odd days only: the round of day 4 does not pass, those of days 5 and 7 do.
        chosen.weather_clause = u" (games2.conditionM = 1)"_s;
        QVERIFY(fill(chosen));
        QCOMPARE(rounds.by_first(1)[26], u"4"_s);
    }

    void a_first_key_without_a_round_starts_at_the_next_one()
    {
        const stored_rounds rounds(3);
        rounds.putts(3, 1, {10});
        QVERIFY(fill(open_putt_selection(u"20030101999999"_s, key_of_day(3))));
        QCOMPARE(rounds.by_first(1)[26], u"2"_s);
    }

    void a_selection_without_a_round_leaves_the_grids_as_they_are_data()
    {
        QTest::addColumn<bool>("french");
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::newRow("nothing so late, French") << true << 9 << 9;
        QTest::newRow("nothing so late, English") << false << 9 << 9;
        QTest::newRow("the range runs backwards, French") << true << 3 << 1;
        QTest::newRow("the range runs backwards, English") << false << 3 << 1;
    }
    void a_selection_without_a_round_leaves_the_grids_as_they_are()
    {
        QFETCH(bool, french);
        QFETCH(int, from);
        QFETCH(int, to);
        const stored_rounds rounds(3, french);
        rounds.putts(3, 1, {10});
        QVERIFY(fill(days(1, 3)));
        const auto before = table_rows(rounds.book.store, u"s_put1"_s);
        fill_in_vain(days(from, to));
        QCOMPARE(table_rows(rounds.book.store, u"s_put1"_s), before);
        QVERIFY(open_recordsets().isEmpty());
        QCOMPARE(data_environment().rsgames2.Source(), u"select * from games2"_s);
    }

    void rounds_without_putts_rewrite_the_grids_and_print_nothing()
    {
        const stored_rounds rounds(2);
        rounds.putts(1, 1, {10});
        QVERIFY(fill(days(1, 1)));
        fill_in_vain(days(2, 2));
        for (int k = 1; k <= 5; ++k)
            QCOMPARE(bands(rounds.by_first(k)), no_bands);
        QCOMPARE(rounds.by_first(5).mid(13, 8), QStringList(8, u" 0"_s));
        QCOMPARE(rounds.by_start(7).mid(11, 2), (QStringList{u" "_s, u"N/A"_s}));
        QCOMPARE(rounds.by_first(1)[26], u"1"_s);
    }

    void a_sixth_putt_ends_in_a_failure_data()
    {
        QTest::addColumn<int>("hole");
        QTest::newRow("hole 4") << 4;
        QTest::newRow("hole 18, behind which the temperature stands") << 18;
    }
    void a_sixth_putt_ends_in_a_failure()
    {
        QFETCH(int, hole);
        const stored_rounds rounds(1);
        rounds.putts(1, hole, {60, 50, 40, 30, 20, 10});
        rounds.book.store.write(u"update games2 set temperature = 21"_s);
        const auto before = table_rows(rounds.book.store, u"s_put1"_s);
        QVERIFY(failure_of([] { fill(days(1, 1)); }) == failure_kind::subscript);
        QCOMPARE(table_rows(rounds.book.store, u"s_put1"_s), before);
        data_environment().rsgames2.Close();
    }

    void the_bar_moves_through_its_values_and_the_report_opens_data() { both_languages(); }
    void the_bar_moves_through_its_values_and_the_report_opens()
    {
        QFETCH(bool, french);
        const stored_rounds rounds(2, french);
        rounds.putts(1, 1, {20, 3});
        const auto steps = bar_in_selection_window(
            [](hand& user) {
                select_range(user, 0, 1);
                run(user, statistics_mode::putt);
                close_report(user, statistics_mode::putt);
                user.check(!user.visible(u"Status"_s), u"the bar is gone"_s);
            },
            statistics_mode::putt);
        QList<int> values;
        for (const bar_step& step : steps) {
            QVERIFY(step.seen);
            values << step.value;
        }
        QCOMPARE(values, (QList<int>{5, 10, 20, 10, 20, 30, 40, 60, 70, 80, 90, 100}));
        QCOMPARE(rounds.by_first(1)[25], french ? u"TOUS LES TERRAINS"_s : u"ALL COURSES"_s);
    }

    void a_message_leaves_no_bar_and_no_report_data() { both_languages(); }
    void a_message_leaves_no_bar_and_no_report()
    {
        QFETCH(bool, french);
        const stored_rounds rounds(3, french);
        in_selection_window(
            [](hand& user) {
                select_range(user, 2, 0);
                run(user, statistics_mode::putt);
                answer_no_putts(user);
                user.check(!user.visible(u"Status"_s), u"the bar is gone"_s);
                user.check(!user.is_open(u"report_preview"_s), u"no report"_s);
            },
            statistics_mode::putt);
    }

    void a_single_round_has_its_rating_on_the_first_row_data() { both_languages(); }
    void a_single_round_has_its_rating_on_the_first_row()
    {
        QFETCH(bool, french);
        const stored_rounds rounds(2, french);
        rounds.putts(1, 1, {20, 3});
        rounds.putts(2, 1, {4});
        QVERIFY(fill(days(1, 1)));
        Recordset& games2 = data_environment().rsgames2;
        games2.Open();
        games2.MoveLast();
        QVERIFY(Statistics::round_putts(u"Ronde : 2003-01-02 PINS"_s, u"Vent"_s));
        games2.Close();
        QCOMPARE(rounds.by_start(1)[12], u"EXCELLENT"_s);
        QCOMPARE(rounds.by_start(7).mid(11, 2), (QStringList{u" 1"_s, u" "_s}));
        QCOMPARE(rounds.by_first(1).mid(11, 2), (QStringList{u"Ronde : 2003-01-02 PINS"_s, u"Vent"_s}));
        QCOMPARE(bands(rounds.by_first(1)), only(7, u"1"_s));
        QCOMPARE(bands(rounds.by_first(2)), no_bands);
        QVERIFY(open_recordsets().isEmpty());
    }

    void a_single_round_without_putts_says_so()
    {
        const stored_rounds rounds(1);
        Recordset& games2 = data_environment().rsgames2;
        games2.Open();
        QVERIFY(!Statistics::round_putts(u"a"_s, u"b"_s));
        games2.Close();
        QCOMPARE(rounds.by_start(1)[12], u"N/A"_s);
    }

    void the_report_of_a_single_round_opens_under_its_captions_data() { both_languages(); }
    void the_report_of_a_single_round_opens_under_its_captions()
    {
        QFETCH(bool, french);
        const stored_rounds rounds(2, french);
        rounds.putts(1, 1, {20, 3});
        QVERIFY(fill(days(1, 2)));
        set_round_putt_report(Statistics::one_round_putt_report);
        Recordset& games2 = data_environment().rsgames2;
        games2.Open();
        report_control cr2;
        launch_round_putt_report(cr2, u"Ronde : 1"_s, u"Vent"_s);
        games2.Close();
        QVERIFY(cr2.preview());
        QVERIFY(cr2.ReportFileName().endsWith(french ? u"\\statPuts.rpt"_s : u"\\statPuts_en.rpt"_s));
        QCOMPARE(cr2.page_zoom().value_or(0), 75);
        delete cr2.preview();
        // Nothing of the last selection stands above the round.
        QCOMPARE(rounds.by_first(1).mid(23), (QStringList{u" "_s, u" "_s, u" "_s, u"1"_s}));
        QCOMPARE(rounds.by_first(1)[11], u"Ronde : 1"_s);
        set_round_putt_report({});
    }

    void a_program_without_that_report_fails()
    {
        set_round_putt_report({});
        report_control cr2;
        QVERIFY(failure_of([&] { launch_round_putt_report(cr2, {}, {}); }) == failure_kind::misuse);
    }
};

QTEST_MAIN(test_putt_statistics)
#include "test_putt_statistics.moc"
