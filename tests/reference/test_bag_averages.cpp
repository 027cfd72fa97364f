#include <QComboBox>
#include <QLineEdit>
#include <QTest>

#include "reference/f_sticks.h"
#include "reference/f_sticks_func.h"
#include "tests/reference/golf_bags.h"
#include "tests/statistics/report_rows.h"
#include "tests/statistics/selection_windows.h"
#include "tests/support/failures.h"
#include "tests/support/hand_widgets.h"
#include "tests/support/window_look.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

void choose(const f_sticks& window, const QString& filter, int index)
{
    window.findChild<QComboBox*>(filter)->setCurrentIndex(index);
}

}  // namespace

class test_bag_averages : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void averages_are_those_of_the_last_row()
    {
        const filled_bag bag;
        bag.book.store.write(u"insert into sticks (avg_1) values (155)"_s);
        in_bag([](hand& user) {
            user.same(user.text(u"Text1_0"_s), u"155"_s, u"club 1"_s);
            user.fill(u"Text1_0"_s, u"160"_s);
            user.click(u"enr"_s);
            answer_keep(user, QMessageBox::Yes);
        });
        const auto rows = bag.book.store.rows(u"select avg_1 from sticks order by rowid"_s);
        QCOMPARE(rows.front().front().toDouble(), 200.5);
        QCOMPARE(rows.back().front().toDouble(), 160.0);
    }

    void averages_are_computed_and_stored_after_a_Yes_data() { both_languages(); }
    void averages_are_computed_and_stored_after_a_Yes()
    {
        QFETCH(bool, french);
        const filled_bag bag(french);
        in_bag([&](hand& user) {
            compute(user, 0, 2);
            user.same(user.text(u"Text1_0"_s), u"225"_s, u"club 1"_s);
            user.same(user.text(u"Text1_4"_s), u"140"_s, u"club 5"_s);
            user.same(user.text(u"Text1_12"_s), u"55"_s, u"club 13"_s);
            user.same(user.text(u"Text1_1"_s), u"0"_s, u"a club without shots"_s);
            user.same(user.text(u"Text1_13"_s), u"3"_s, u"the putter is not changed"_s);
            user.same(user.text(u"Text1_14"_s), QString(), u"the box after the putter"_s);
            user.check(!user.is_open(u"report_preview"_s), u"no report"_s);
            QCOMPARE(bag.average(1), 200.5);
            QCOMPARE(bag.shots(1), 0);
            user.click(u"enr"_s);
            answer_keep(user, QMessageBox::Yes);
        });
        QCOMPARE(bag.average(1), 225.0);
        QCOMPARE(bag.average(5), 140.0);
        QCOMPARE(bag.average(14), 3.0);
        QCOMPARE(bag.shots(1), 2);
        QCOMPARE(bag.shots(5), 1);
    }

    void a_typed_average_is_stored_as_its_leading_number_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<double>("stored");
        QTest::newRow("a number with a unit") << u"120m"_s << 120.0;
        QTest::newRow("decimals") << u"187.5"_s << 187.5;
        QTest::newRow("a decimal comma") << u"187,5"_s << 187.5;
        QTest::newRow("a second comma ends the number") << u"187,5,2"_s << 187.5;
        QTest::newRow("leading blanks") << u"  90"_s << 90.0;
        QTest::newRow("negative") << u"-12.5"_s << -12.5;
        QTest::newRow("an exponent") << u"2e2"_s << 200.0;
        QTest::newRow("huge") << u"123456789012345"_s << 123456789012345.0;
        QTest::newRow("no number") << u"far"_s << 0.0;
        QTest::newRow("accents") << u"été 120"_s << 0.0;
        QTest::newRow("quotes") << u"'120'"_s << 0.0;
        QTest::newRow("nothing") << u" "_s << 0.0;
    }
    void a_typed_average_is_stored_as_its_leading_number()
    {
        QFETCH(QString, typed);
        const filled_bag bag;
        in_bag([&](hand& user) {
            user.fill(u"Text1_6"_s, typed);
            user.click(u"enr"_s);
            answer_keep(user, QMessageBox::Yes);
        });
        QTEST(bag.average(7), "stored");
    }

    void a_pasted_average_is_read_like_a_typed_one()
    {
        const filled_bag bag;
        in_bag([](hand& user) {
            user.paste(u"Text1_5"_s, u"187,5"_s);
            user.paste(u"Text1_6"_s, u"210 verges\nou 220"_s);
            user.paste(u"Text1_7"_s, u""_s + QChar(0x663) + u"0");
            user.paste(u"sn_6"_s, u"Fer \u2116 7"_s);
            user.click(u"enr"_s);
            answer_keep(user, QMessageBox::Yes);
        });
        QCOMPARE(bag.average(6), 187.5);
        QCOMPARE(bag.average(7), 210.0);
        QCOMPARE(bag.average(8), 0.0);
        QCOMPARE(bag.name(7), u"Fer \u2116 7"_s);
    }

    void an_average_that_exceeds_a_double_is_a_failure_and_nothing_is_stored()
    {
        const filled_bag bag;
        {
            f_sticks window;
            window.set_average(13, u"1e400"_s);
            QVERIFY(failure_of([&] { f_sticks_func::accept(window); }) == failure_kind::overflow);
            window.closeForm();
        }
        QCOMPARE(bag.book.store.number(u"select count(*) from sticks where avg_14 = 3"_s), 1);
    }

    void an_average_typed_over_a_computed_one_is_stored()
    {
        const filled_bag bag;
        in_bag([](hand& user) {
            compute(user, 0, 2);
            user.fill(u"Text1_0"_s, u"240"_s);
            user.click(u"enr"_s);
            answer_keep(user, QMessageBox::Yes);
        });
        QCOMPARE(bag.average(1), 240.0);
        QCOMPARE(bag.shots(1), 2);
        QCOMPARE(bag.average(5), 140.0);
    }

    void only_the_last_computation_is_stored()
    {
        const filled_bag bag;
        in_bag([](hand& user) {
            compute(user, 0, 2);
            // The first round is selected in both lists at first.
            user.click_row(u"List2"_s, 0);
            user.click(u"Actualiser"_s);
            user.same(user.text(u"Text1_0"_s), u"250"_s, u"the first round alone"_s);
            user.click(u"enr"_s);
            answer_keep(user, QMessageBox::Yes);
        });
        QCOMPARE(bag.average(1), 250.0);
        QCOMPARE(bag.average(5), 0.0);
        QCOMPARE(bag.shots(1), 1);
        QCOMPARE(bag.shots(5), 0);
    }

    void without_a_selection_the_range_is_the_first_round()
    {
        const filled_bag bag;
        in_bag([](hand& user) {
            user.click(u"Command1"_s);
            user.click(u"Actualiser"_s);
            user.same(user.text(u"Text1_0"_s), u"250"_s, u"the first round alone"_s);
            user.click(u"Fer"_s);
        });
    }

    void a_club_without_a_clean_shot_has_an_empty_average_and_is_stored_as_0()
    {
        const filled_bag bag;
        bag.book.store.write(
            {u"update Stat_rounds set missed = 1 where stickval = 5"_s, u"update sticks set avg_5 = 150"_s});
        in_bag([](hand& user) {
            compute(user, 0, 2);
            user.same(user.text(u"Text1_4"_s), QString(), u"club 5"_s);
            user.click(u"enr"_s);
            answer_keep(user, QMessageBox::Yes);
        });
        QCOMPARE(bag.average(5), 0.0);
        QCOMPARE(bag.shots(5), 0);
    }

    void a_shot_past_the_hole_without_a_remaining_distance_counts_the_distance_to_the_hole_data()
    {
        QTest::addColumn<QString>("unit");
        QTest::newRow("feet") << u"'Feets'"_s;
        QTest::newRow("yards") << u"'Yards'"_s;
        QTest::newRow("no unit") << u"null"_s;
    }
    void a_shot_past_the_hole_without_a_remaining_distance_counts_the_distance_to_the_hole()
    {
        QFETCH(QString, unit);
        const filled_bag bag;
        put_shot(bag.book.store, key_of_day(1), 6, u"before, after, unit, beyong_hole, shot_type_value"_s,
                 u"150, null, "_s + unit + u", 1, 0");
        in_bag([](hand& user) {
            compute(user, 0, 2);
            user.same(user.text(u"Text1_5"_s), u"150"_s, u"club 6"_s);
            user.click(u"enr"_s);
            answer_keep(user, QMessageBox::Yes);
        });
        QCOMPARE(bag.average(6), 150.0);
        QCOMPARE(bag.shots(6), 1);
    }

    void zeros_of_a_selection_without_shots_are_stored_after_a_Yes()
    {
        const filled_bag bag;
        bag.book.store.write(u"update sticks set shots_1 = 9, shots_14 = 9"_s);
        in_bag([](hand& user) {
            compute(user, 2, 0);
            answer_no_shots(user);
            user.wait_until(u"the zeros"_s, [] { return text_of(*find_control(u"Text1_0"_s)) == u"0"; });
            user.click(u"enr"_s);
            answer_keep(user, QMessageBox::Yes);
        });
        QCOMPARE(bag.average(1), 0.0);
        QCOMPARE(bag.average(14), 3.0);
        QCOMPARE(bag.shots(1), 0);
        QCOMPARE(bag.shots(14), 0);
    }

    void a_course_is_selected_by_its_position_in_the_list()
    {
        const filled_bag bag;
        bag.book.add(flat_course(u"PINS-5"_s, 4, u"70"_s, u"113"_s));
        bag.book.add(flat_course(u"PINS-2"_s, 4, u"70"_s, u"113"_s));
        {
            f_sticks window;
            choose(window, u"cmb_courses"_s, 2);
            QCOMPARE(window.selection().course_clause, u" AND GAMES2.FC = 'PINS-5'"_s);
            choose(window, u"cmb_courses"_s, 3);
            QCOMPARE(window.selection().course_clause, u" AND GAMES2.FC = 'PINS-2'"_s);
            window.closeForm();
        }
    }

    void a_reversed_range_has_no_figures_data() { both_languages(); }
    void a_reversed_range_has_no_figures()
    {
        QFETCH(bool, french);
        const filled_bag bag(french);
        in_bag([](hand& user) {
            compute(user, 2, 0);
            answer_no_shots(user);
            user.wait_until(u"the zeros"_s, [] { return text_of(*find_control(u"Text1_0"_s)) == u"0"; });
            user.click(u"Fer"_s);
        });
        QCOMPARE(bag.average(1), 200.5);
    }

    void the_filters_select_the_rounds()
    {
        const filled_bag bag;
        in_bag([](hand& user) {
            user.click(u"Command1"_s);
            user.click_row(u"List2"_s, 2);
            user.choose(u"pList"_s, 1);
            user.choose(u"cmb_courses"_s, 1);
            user.choose(u"conditions"_s, 2);
            user.click(u"Actualiser"_s);
            user.same(user.text(u"Text1_0"_s), u"200"_s, u"the second round alone"_s);
            user.choose(u"conditions"_s, 1);
            user.click(u"Actualiser"_s);
            answer_no_shots(user);
            user.wait_until(u"the zeros"_s, [] { return text_of(*find_control(u"Text1_0"_s)) == u"0"; });
            user.click(u"Fer"_s);
        });
    }

    void the_filters_become_clauses_and_texts_data()
    {
        QTest::addColumn<bool>("french");
        QTest::addColumn<bool>("on");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("off, French") << true << false << QStringList{u" "_s,
                                                                     u" "_s,
                                                                     QString(),
                                                                     u"Toutes"_s,
                                                                     u"TOUS LES PARTENAIRES"_s,
                                                                     u"TOUS LES TERRAINS"_s};
        QTest::newRow("off, English")
            << false << false
            << QStringList{u" "_s, u" "_s, QString(), u"ALL"_s, u"All partners"_s, u"All COURSES"_s};
        QTest::newRow("selected") << true << true
                                  << QStringList{u" AND (games2.conditionM = 3)"_s,
                                                 u" AND INSTR(GAMES2.PARTNERS,'12')"_s,
                                                 u" AND GAMES2.FC = 'PEBBLE BEACH-3'"_s,
                                                 u"Vent"_s,
                                                 u"Anne, Douze"_s,
                                                 u"Pebble Beach        , OR"_s};
    }
    void the_filters_become_clauses_and_texts()
    {
        QFETCH(bool, french);
        QFETCH(bool, on);
        const filled_bag bag(french);
        {
            f_sticks window;
            if (on) {
                choose(window, u"conditions"_s, 4);
                choose(window, u"pList"_s, 1);
                choose(window, u"cmb_courses"_s, 1);
            }
            const selection_arguments got = window.selection();
            const QStringList seen{got.weather_clause, got.partner_clause, got.course_clause,
                                   got.weather_text,   got.partner_text,   got.course_text};
            QTEST(seen, "expected");
            QCOMPARE(got.from_key, key_of_day(1));
            window.closeForm();
        }
        QVERIFY(open_recordsets().isEmpty());
    }
};

QTEST_MAIN(test_bag_averages)
#include "test_bag_averages.moc"
