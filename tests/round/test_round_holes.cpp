#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>
#include <QWheelEvent>

#include "base/language.h"
#include "controls/TabStrip.h"
#include "round/f_new_round.h"
#include "store/tables/games.h"
#include "tests/round/round_windows.h"
#include "tests/support/languages.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

const QString tabs = u"TabStrip1"_s;
const QString holes = u"cmb_holes"_s;

void type_figures(hand& user, const QString& figures)
{
    user.click(u"text_vrd_0"_s);
    user.type(figures);
}

void check_hole(hand& user, int hole)
{
    const QString number = QString::number(hole);
    user.same(user.selected(holes), hole - 1, u"entry of the holes"_s);
    user.same(user.selected(tabs), hole - 1, u"tab"_s);
    user.same(user.text(u"Label_4"_s), number, u"number"_s);
    user.same(user.text(u"text_39"_s), QString::number(100 + hole), u"length"_s);
    user.same(user.text(u"text_0"_s), QString::number(19 - hole), u"index"_s);
    with_round(user, [&](f_new_round& window) {
        QCOMPARE(find_control<QLineEdit>(window, u"text_40"_s).text(), number);
        QCOMPARE(plain(window.last_hole()), hole - 1);
    });
}

/// Changes from hole 1 to hole 2 in one of four ways.
void select_hole_2(hand& user, const QString& way)
{
    if (way == u"tab") {
        user.click_tab(tabs, 2);
    } else if (way == u"list") {
        user.choose(holes, 1);
    } else if (way == u"tab by keyboard") {
        with_round(user, [](f_new_round& window) { find_control<QWidget>(window, tabs).setFocus(); });
        user.key(Qt::Key_Right);
    } else {
        with_round(user, [](f_new_round& window) { find_control<QWidget>(window, holes).setFocus(); });
        user.key(Qt::Key_2);
    }
}

}  // namespace

class test_round_holes : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tabs_and_list_have_the_numbers_1_to_18_data() { both_languages(); }
    void tabs_and_list_have_the_numbers_1_to_18()
    {
        QFETCH(bool, french);
        const round_store store(french);
        store.add_two_courses();
        QStringList numbers;
        for (int hole = 1; hole <= 18; ++hole)
            numbers << QString::number(hole);
        in_keyed_round([&](hand& user) {
            user.same(user.entries(tabs).join(u' '), numbers.join(u' '), u"tabs"_s);
            user.same(user.entries(holes).join(u' '), numbers.join(u' '), u"list"_s);
            discard(user);
        });
    }

    void the_window_opens_on_the_first_hole_and_stores_nothing()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([&](hand& user) {
            check_hole(user, 1);
            user.same(boxes(user), u"0 0 0 0 0 0 0 0 0 0 0"_s, u"boxes"_s);
            user.same(user.text(u"text_38"_s), u"4"_s, u"par"_s);
            QCOMPARE(store.number(u"select count(*) from games"_s), 0);
            discard(user);
        });
    }

    void a_hole_is_stored_when_it_is_left_data()
    {
        QTest::addColumn<QString>("way");
        for (const char* way : {"tab", "list", "tab by keyboard", "list by keyboard"})
            QTest::newRow(way) << QString::fromLatin1(way);
    }

    void a_hole_is_stored_when_it_is_left()
    {
        QFETCH(QString, way);
        const round_store store;
        store.add_two_courses();
        in_keyed_round([&](hand& user) {
            user.type(u"12345678901"_s);
            select_hole_2(user, way);
            check_hole(user, 2);
            user.same(boxes(user), u"0 0 0 0 0 0 0 0 0 0 0"_s, u"boxes"_s);
            user.same(store.at(u"games"_s, tables::games::long_h(1)), u"1"_s, way);
            user.same(store.at(u"games"_s, tables::games::pen_bounds_h(1)), u"1"_s, way);
            user.click_tab(tabs, 1);
            user.same(boxes(user), u"1 2 3 4 5 6 7 8 9 0 1"_s, u"boxes"_s);
            discard(user);
        });
    }

    void each_typed_figure_is_stored_in_the_column_of_its_hole_data()
    {
        QTest::addColumn<int>("hole");
        for (const int hole : {1, 2, 9, 17, 18})
            QTest::addRow("hole %d", hole) << hole;
    }

    void each_typed_figure_is_stored_in_the_column_of_its_hole()
    {
        QFETCH(int, hole);
        const round_store store;
        store.add_two_courses();
        in_keyed_round([&](hand& user) {
            user.click_tab(tabs, hole);
            type_figures(user, u"12345678921"_s);
            accept(user);
        });
        const auto games = [&](int ordinal) { return store.at(u"games"_s, ordinal); };
        const auto games2 = [&](int ordinal) { return store.at(u"games2"_s, ordinal); };
        QCOMPARE(games(3 * hole), u"1"_s);
        QCOMPARE(games(3 * hole + 1), u"2"_s);
        QCOMPARE(games(3 * hole + 2), u"3"_s);
        QCOMPARE(games2(hole + 74), u"4"_s);
        QCOMPARE(games2(hole + 2), u"5"_s);
        QCOMPARE(games(hole + 152), u"6"_s);
        QCOMPARE(games2(hole + 20), u"7"_s);
        QCOMPARE(games(4 * (hole - 1) + 64), u"8"_s);
        QCOMPARE(games(4 * (hole - 1) + 66), u"9"_s);
        QCOMPARE(games(4 * (hole - 1) + 63), u"2"_s);
        QCOMPARE(games(4 * (hole - 1) + 65), u"1"_s);
        const int other = hole == 5 ? 6 : 5;
        QCOMPARE(games(3 * other), u"null"_s);
    }

    void a_click_on_the_same_tab_stores_what_was_typed()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([&](hand& user) {
            user.type(u"53"_s);
            user.click_tab(tabs, 1);
            user.same(store.at(u"games"_s, 3), u"5"_s, u"long shots"_s);
            user.same(boxes(user).left(5), u"5 3 0"_s, u"boxes"_s);
            user.same(user.focus(), u"text_vrd_0"_s, u"focus"_s);
            user.same(user.selected_text(u"text_vrd_0"_s), u"5"_s, u"what a digit replaces"_s);
            discard(user);
        });
    }

    void a_click_on_a_tab_sets_the_focus_to_the_first_box()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([&](hand& user) {
            user.type(u"11"_s);
            user.click_tab(tabs, 7);
            user.same(user.focus(), u"text_vrd_0"_s, u"focus"_s);
            user.type(u"3"_s);
            user.same(user.text(u"text_vrd_0"_s), u"3"_s, u"box"_s);
            discard(user);
        });
    }

    void a_stored_round_is_shown_again_in_both_languages_data() { both_languages(); }
    void a_stored_round_is_shown_again_in_both_languages()
    {
        QFETCH(bool, french);
        const round_store store(true);
        store.add_two_courses();
        in_keyed_round([](hand& user) {
            user.choose(u"cmb_courses"_s, 1);
            user.click(u"text_vrd_0"_s);
            user.type(u"12345678901"_s);
            user.click_tab(tabs, 18);
            user.type(u"21110000001"_s);
            accept(user);
        });
        is_french = french;
        in_stored_round(key_of_keyed_round(), [](hand& user) {
            user.same(boxes(user), u"1 2 3 4 5 6 7 8 9 0 1"_s, u"hole 1"_s);
            user.same(user.text(u"text_2"_s), u"2024-06-14"_s, u"date"_s);
            user.same(user.text(u"text_3"_s), u"09:30:00"_s, u"time"_s);
            user.same(user.selected(u"cmb_courses"_s), 1, u"course"_s);
            user.same(user.text(u"text_38"_s), u"5"_s, u"par"_s);
            user.check(!user.enabled(u"b_getdat"_s), u"no other date"_s);
            user.click_tab(tabs, 18);
            user.same(boxes(user), u"2 1 1 1 0 0 0 0 0 0 1"_s, u"hole 18"_s);
            discard(user);
        });
    }

    void a_round_without_figures_shows_zeros()
    {
        const round_store store;
        store.add_two_courses();
        store.add_round(key_of_keyed_round());
        in_stored_round(key_of_keyed_round(), [](hand& user) {
            user.same(boxes(user), u"0 0 0 0 0 0 0 0 0 0 0"_s, u"boxes"_s);
            user.same(user.text(u"text_vrd_3"_s), u"0"_s, u"shots"_s);
            user.same(user.text(u"text_36"_s), u"0"_s, u"penalties"_s);
            discard(user);
        });
    }

    void the_wheel_changes_nothing_data()
    {
        QTest::addColumn<QString>("control");
        for (const char* control : {"cmb_holes", "cmb_courses", "conditions", "UpDown1", "TabStrip1"})
            QTest::newRow(control) << QString::fromLatin1(control);
    }

    void the_wheel_changes_nothing()
    {
        QFETCH(QString, control);
        const round_store store;
        store.add_two_courses();
        in_keyed_round([&](hand& user) {
            with_round(user, [&](f_new_round& window) {
                auto* target = window.findChild<QWidget*>(control);
                QWheelEvent turn(QPointF(4, 4), target->mapToGlobal(QPointF(4, 4)), {}, {0, -120},
                                 Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
                QApplication::sendEvent(target, &turn);
                // A real wheel would also set the focus.
                QVERIFY(target->focusPolicy() != Qt::WheelFocus);
            });
            check_hole(user, 1);
            user.same(user.selected(u"cmb_courses"_s), 0, u"course"_s);
            user.same(user.selected(u"conditions"_s), 0, u"weather"_s);
            user.same(user.text(u"Text1"_s), u"  "_s, u"temperature"_s);
            discard(user);
        });
    }

    void selecting_another_course_shows_its_card()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([&](hand& user) {
            user.type(u"112"_s);
            user.same(user.text(u"text_32"_s), u"1"_s, u"par 4"_s);
            user.choose(u"cmb_courses"_s, 1);
            user.same(user.text(u"text_38"_s), u"5"_s, u"par"_s);
            user.same(user.text(u"text_32"_s), u" "_s, u"par 4"_s);
            user.same(user.text(u"text_24"_s), u"1"_s, u"birdie"_s);
            user.same(boxes(user).left(5), u"1 1 2"_s, u"boxes"_s);
            accept(user);
        });
        QCOMPARE(store.of_round(u"games"_s, u"CODEF || field"_s), u"BETA-6Beta"_s);
        QCOMPARE(store.of_round(u"games2"_s, u"FC"_s), u"BETA-6"_s);
    }
};

QTEST_MAIN(test_round_holes)

#include "test_round_holes.moc"
