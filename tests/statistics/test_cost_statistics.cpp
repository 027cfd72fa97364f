#include <QApplication>
#include <QProgressBar>
#include <QTest>

#include "controls/boxes.h"
#include "reports/query/report_snapshot.h"
#include "statistics/cost_statistics.h"
#include "store/DataEnvironment1.h"
#include "tests/statistics/report_rows.h"
#include "tests/statistics/selection_windows.h"
#include "tests/support/diary.h"
#include "tests/support/failures.h"
#include "tests/support/hand_widgets.h"
#include "tests/support/store_folder.h"
#include "tests/support/wide_column.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// Rounds on the first days of a year, each with costs by its day.
class stored_costs : public level_rounds {
public:
    explicit stored_costs(int days, bool french = true) : level_rounds(days, french)
    {
        for (int day = 1; day <= days; ++day)
            put_costs(store, key_of_day(day), day);
    }

    QList<QStringList> report() const { return table_rows(store, u"r_cost"_s); }
};

selection_arguments days(int from, int to)
{
    return open_selection(key_of_day(from), key_of_day(to));
}

bool fill(const selection_arguments& chosen)
{
    run_progress no_bar;
    return Statistics::fill_r_cost(chosen, no_bar);
}

void answer_no_costs(hand& user)
{
    answer_plain(user, u"Verdane n'a trouvé aucune ronde détaillée avec les conditions choisies",
                 u"Verdane could not find any detailed rounds with the chosen parameters.");
}

QStringList row_of_day(int day, const QString& count)
{
    QStringList row{key_of_day(day)};
    for (int amount = 1; amount <= 12; ++amount)
        row << QString::number(amount * day);
    return row << QString() << count;
}

}  // namespace

class test_cost_statistics : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_costs_of_the_selected_rounds_are_copied_and_counted()
    {
        const stored_costs costs(4);
        QVERIFY(fill(days(2, 3)));
        QCOMPARE(costs.report(), (QList<QStringList>{row_of_day(2, u"2"_s), row_of_day(3, QString())}));
        QVERIFY(open_recordsets().isEmpty());
        QCOMPARE(data_environment().rscost.Source(), u"select * from cost"_s);
        QCOMPARE(data_environment().rsr_cost.Source(), u"select * from r_cost"_s);
    }

    void two_runs_leave_the_rows_of_the_second()
    {
        const stored_costs costs(4);
        QVERIFY(fill(days(1, 4)));
        QVERIFY(fill(days(4, 4)));
        QCOMPARE(costs.report(), (QList<QStringList>{row_of_day(4, u"1"_s)}));
    }

    void a_round_without_costs_is_left_out()
    {
        const stored_costs costs(3);
        costs.book.store.write(u"delete from cost where date = '"_s + key_of_day(2) + u'\'');
        QVERIFY(fill(days(1, 3)));
        QCOMPARE(costs.report(), (QList<QStringList>{row_of_day(1, u"2"_s), row_of_day(3, QString())}));
    }

    void costs_that_were_entered_out_of_date_order_are_copied_in_date_order()
    {
        const stored_costs costs(4);
        for (const int day : {3, 1, 2}) {
            costs.book.store.write(u"delete from cost where date = '"_s + key_of_day(day) + u'\'');
            put_costs(costs.book.store, key_of_day(day), day);
        }
        QVERIFY(fill(days(1, 3)));
        QCOMPARE(costs.report(), (QList<QStringList>{row_of_day(1, u"3"_s), row_of_day(2, QString()),
                                                     row_of_day(3, QString())}));
    }

    void the_first_of_two_rows_with_the_earliest_date_has_the_count()
    {
        const stored_costs costs(2);
        put_costs(costs.book.store, key_of_day(1), 1);
        QVERIFY(fill(days(1, 2)));
        QCOMPARE(costs.report(), (QList<QStringList>{row_of_day(1, u"3"_s), row_of_day(1, QString()),
                                                     row_of_day(2, QString())}));
    }

    void the_clauses_select_the_rounds()
    {
        const stored_costs costs(4);
        selection_arguments chosen = days(1, 4);
        chosen.weather_clause = u" AND (games2.conditionM = 0)"_s;
        chosen.course_clause = u" AND GAMES2.FC = 'PINS-0'"_s;
        QVERIFY(fill(chosen));
        QCOMPARE(costs.report(), (QList<QStringList>{row_of_day(2, u"2"_s), row_of_day(4, QString())}));
        costs.book.store.write(u"update games2 set PARTNERS = '3-112-' where date = '"_s + key_of_day(4) +
                               u'\'');
        // A number is found inside a longer one too.
        chosen.partner_clause = u" AND INSTR(GAMES2.PARTNERS,'12')"_s;
        QVERIFY(fill(chosen));
        QCOMPARE(costs.report(), (QList<QStringList>{row_of_day(4, u"1"_s)}));
        chosen.course_clause = u" AND GAMES2.FC = 'PINS-1'"_s;
        play([&] { QVERIFY(!fill(chosen)); }, answer_no_costs);
    }

    void an_amount_without_a_value_is_copied_without_one()
    {
        const stored_costs costs(1);
        costs.book.store.write(u"update cost set vt = null"_s);
        QVERIFY(fill(days(1, 1)));
        QCOMPARE(costs.book.store.number(u"select count(*) from r_cost where vt is null and ft = 4"_s), 1);
    }

    void large_amounts_are_copied_whole()
    {
        const stored_costs costs(1);
        costs.book.store.write(u"update cost set au = 2000000000"_s);
        QVERIFY(fill(days(1, 1)));
        QCOMPARE(costs.report()[0][12], u"2000000000"_s);
    }

    void an_amount_beyond_32_bits_is_an_overflow_and_nothing_is_copied_data()
    {
        QTest::addColumn<QString>("column");
        QTest::addColumn<QString>("amount");
        QTest::newRow("too large") << u"au"_s << u"2147483648"_s;
        QTest::newRow("too far below 0") << u"fg"_s << u"-2147483649"_s;
    }
    void an_amount_beyond_32_bits_is_an_overflow_and_nothing_is_copied()
    {
        QFETCH(QString, column);
        QFETCH(QString, amount);
        const stored_costs costs(3);
        QVERIFY(fill(days(2, 2)));
        widen_column(costs.location(), u"cost"_s, column);
        costs.book.store.write(
            u"update cost set %1 = %2 where date = '%3'"_s.arg(column, amount, key_of_day(3)));
        QVERIFY(failure_of([] { fill(days(1, 3)); }) == failure_kind::overflow);
        data_environment().rscost.Close();
        QCOMPARE(costs.report(), (QList<QStringList>{row_of_day(2, u"1"_s)}));
        QVERIFY(fill(days(1, 2)));
    }

    void a_selection_without_costs_empties_the_table_and_leaves_its_statement_in_force_data()
    {
        QTest::addColumn<bool>("french");
        QTest::addColumn<int>("from");
        QTest::newRow("no round after the first key, French") << true << 9;
        QTest::newRow("no round after the first key, English") << false << 9;
        QTest::newRow("reversed range, French") << true << 3;
        QTest::newRow("reversed range, English") << false << 3;
    }
    void a_selection_without_costs_empties_the_table_and_leaves_its_statement_in_force()
    {
        QFETCH(bool, french);
        QFETCH(int, from);
        const stored_costs costs(3, french);
        QVERIFY(fill(days(1, 3)));
        play([&] { QVERIFY(!fill(days(from, 1))); }, answer_no_costs);
        QVERIFY(costs.report().isEmpty());
        QVERIFY(open_recordsets().isEmpty());
        QCOMPARE(data_environment().rscost.Source(), Statistics::cost_select(days(from, 1)));
    }

    void without_costs_the_message_is_shown_while_the_bar_is_visible_and_no_report_is_set_up_data()
    {
        both_languages();
    }
    void without_costs_the_message_is_shown_while_the_bar_is_visible_and_no_report_is_set_up()
    {
        QFETCH(bool, french);
        const stored_costs costs(2, french);
        costs.book.store.write(u"insert into r_cost (date) values ('last run')"_s);
        in_selection_window(
            [&](hand& user) {
                select_range(user, 1, 0);
                run(user, statistics_mode::cost);
                user.wait_until(u"the message"_s,
                                [] { return QApplication::activeModalWidget() != active_form(); });
                user.look([&] {
                    auto& window = dynamic_cast<f_date_range&>(*active_form());
                    const auto& bar = find_control<QProgressBar>(window, u"Status"_s);
                    QVERIFY(bar.isVisible());
                    QCOMPARE(bar.value(), 0);
                    QVERIFY(window.cr2().ReportFileName().isEmpty());
                    QVERIFY(costs.report().isEmpty());
                });
                answer_no_costs(user);
                user.wait_until(u"the bar is hidden"_s,
                                [] { return !find_control(u"Status"_s)->isVisible(); });
            },
            statistics_mode::cost);
    }

    void each_run_starts_with_an_empty_table_and_the_bar_at_0()
    {
        const stored_costs costs(3);
        const auto steps = bar_in_selection_window(
            [](hand& user) {
                select_range(user, 0, 1);
                run(user, statistics_mode::cost);
                close_report(user, statistics_mode::cost);
                select_range(user, 2, 2);
                run(user, statistics_mode::cost);
                close_report(user, statistics_mode::cost);
            },
            statistics_mode::cost);
        QCOMPARE(steps,
                 (QList<bar_step>{{3, true}, {6, true}, {100, true}, {0, true}, {3, true}, {100, true}}));
        QCOMPARE(costs.report(), (QList<QStringList>{row_of_day(3, u"1"_s)}));
    }

    void closing_the_window_restores_the_statement_of_the_whole_table()
    {
        const stored_costs costs(2);
        in_selection_window(
            [](hand& user) {
                select_range(user, 1, 0);
                run(user, statistics_mode::cost);
                answer_no_costs(user);
                user.wait_until(u"the bar is hidden"_s,
                                [] { return !find_control(u"Status"_s)->isVisible(); });
                user.check(!user.is_open(u"report_preview"_s), u"no report"_s);
            },
            statistics_mode::cost);
        QCOMPARE(data_environment().rscost.Source(), u"select * from cost"_s);
    }

    void the_bar_rises_by_3_for_each_round_up_to_its_maximum_data()
    {
        QTest::addColumn<int>("rounds");
        QTest::newRow("one round") << 1;
        QTest::newRow("33 rounds") << 33;
        QTest::newRow("34 rounds reach the end") << 34;
        QTest::newRow("40 rounds") << 40;
    }
    void the_bar_rises_by_3_for_each_round_up_to_its_maximum()
    {
        QFETCH(int, rounds);
        const stored_costs costs(rounds);
        const auto steps = bar_in_selection_window(
            [rounds](hand& user) {
                select_range(user, 0, rounds - 1);
                run(user, statistics_mode::cost);
                close_report(user, statistics_mode::cost);
                user.check(!user.visible(u"Status"_s), u"the bar is hidden"_s);
            },
            statistics_mode::cost);
        QList<int> expected;
        for (int round = 1; round <= rounds && 3 * round < 100; ++round)
            expected << 3 * round;
        expected << 100;
        QList<int> values;
        for (const bar_step& step : steps) {
            QVERIFY(step.seen);
            values << step.value;
        }
        QCOMPARE(values, expected);
        QCOMPARE(costs.report().size(), rounds);
    }

    void the_report_opens_in_the_language_data() { both_languages(); }
    void the_report_opens_in_the_language()
    {
        QFETCH(bool, french);
        const stored_costs costs(2, french);
        in_selection_window(
            [](hand& user) {
                select_range(user, 0, 1);
                run(user, statistics_mode::cost);
                close_report(user, statistics_mode::cost);
            },
            statistics_mode::cost);
        QCOMPARE(costs.report().size(), 2);
    }
};

QTEST_MAIN(test_cost_statistics)
#include "test_cost_statistics.moc"
