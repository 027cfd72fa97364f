#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>
#include <QWheelEvent>

#include "base/language.h"
#include "controls/TabStrip.h"
#include "records/round_columns.h"
#include "round/f_new_round.h"
#include "tests/round/round_windows.h"
#include "tests/support/languages.h"

using namespace verdane;
using namespace verdane::testing;

namespace {

namespace at = round_columns;

const QString tabs = QStringLiteral("TabStrip1");
const QString holes = QStringLiteral("cmb_holes");

void tell_hole(hand& user, const QString& figures)
{
    user.click(QStringLiteral("text_vrd_0"));
    user.type(figures);
}

void stands_on(hand& user, int hole)
{
    const QString number = QString::number(hole);
    user.same(user.selected(holes), hole - 1, QStringLiteral("entry of the holes"));
    user.same(user.selected(tabs), hole - 1, QStringLiteral("tab"));
    user.same(user.text(QStringLiteral("Label_4")), number, QStringLiteral("number"));
    user.same(user.text(QStringLiteral("text_39")), QString::number(100 + hole), QStringLiteral("length"));
    user.same(user.text(QStringLiteral("text_0")), QString::number(19 - hole), QStringLiteral("index"));
    with_round(user, [&](f_new_round& window) {
        QCOMPARE(window.text(40).text(), number);
        QCOMPARE(plain(window.last_hole), hole - 1);
    });
}

/// Four ways to go from hole 1 to hole 2.
void go_on(hand& user, const QString& way)
{
    if (way == u"tab") {
        user.click_tab(tabs, 2);
    } else if (way == u"list") {
        user.choose(holes, 1);
    } else if (way == u"tab by keyboard") {
        with_round(user, [](f_new_round& window) { window.TabStrip1->setFocus(); });
        user.key(Qt::Key_Right);
    } else {
        with_round(user, [](f_new_round& window) { window.cmb_holes->setFocus(); });
        user.key(Qt::Key_2);
    }
}

}  // namespace

class test_round_holes : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_window_opens_on_the_first_hole_and_stores_nothing()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([&](hand& user) {
            stands_on(user, 1);
            user.same(boxes(user), QStringLiteral("0 0 0 0 0 0 0 0 0 0 0"), QStringLiteral("boxes"));
            user.same(user.text(QStringLiteral("text_38")), QStringLiteral("4"), QStringLiteral("par"));
            QCOMPARE(store.number(QStringLiteral("select count(*) from games")), 0);
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
            user.type(QStringLiteral("12345678901"));
            go_on(user, way);
            stands_on(user, 2);
            user.same(boxes(user), QStringLiteral("0 0 0 0 0 0 0 0 0 0 0"), QStringLiteral("boxes"));
            user.same(store.at(QStringLiteral("games"), at::long_h(1)), QStringLiteral("1"), way);
            user.same(store.at(QStringLiteral("games"), at::pen_bounds_h(1)), QStringLiteral("1"), way);
            user.click_tab(tabs, 1);
            user.same(boxes(user), QStringLiteral("1 2 3 4 5 6 7 8 9 0 1"), QStringLiteral("boxes"));
            discard(user);
        });
    }

    void each_figure_has_its_column_data()
    {
        QTest::addColumn<int>("hole");
        for (const int hole : {1, 2, 9, 17, 18})
            QTest::addRow("hole %d", hole) << hole;
    }

    void each_figure_has_its_column()
    {
        QFETCH(int, hole);
        const round_store store;
        store.add_two_courses();
        in_keyed_round([&](hand& user) {
            user.click_tab(tabs, hole);
            tell_hole(user, QStringLiteral("12345678921"));
            accept(user);
        });
        const auto games = [&](int ordinal) { return store.at(QStringLiteral("games"), ordinal); };
        const auto games2 = [&](int ordinal) { return store.at(QStringLiteral("games2"), ordinal); };
        QCOMPARE(games(3 * hole), QStringLiteral("1"));
        QCOMPARE(games(3 * hole + 1), QStringLiteral("2"));
        QCOMPARE(games(3 * hole + 2), QStringLiteral("3"));
        QCOMPARE(games2(hole + 74), QStringLiteral("4"));
        QCOMPARE(games2(hole + 2), QStringLiteral("5"));
        QCOMPARE(games(hole + 152), QStringLiteral("6"));
        QCOMPARE(games2(hole + 20), QStringLiteral("7"));
        QCOMPARE(games(4 * (hole - 1) + 64), QStringLiteral("8"));
        QCOMPARE(games(4 * (hole - 1) + 66), QStringLiteral("9"));
        QCOMPARE(games(4 * (hole - 1) + 63), QStringLiteral("2"));
        QCOMPARE(games(4 * (hole - 1) + 65), QStringLiteral("1"));
        const int other = hole == 5 ? 6 : 5;
        QCOMPARE(games(3 * other), QStringLiteral("null"));
    }

    void a_click_on_the_same_tab_stores_what_was_typed()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([&](hand& user) {
            user.type(QStringLiteral("53"));
            user.click_tab(tabs, 1);
            user.same(store.at(QStringLiteral("games"), 3), QStringLiteral("5"),
                      QStringLiteral("long shots"));
            user.same(boxes(user).left(5), QStringLiteral("5 3 0"), QStringLiteral("boxes"));
            user.same(user.focus(), QStringLiteral("text_vrd_0"), QStringLiteral("focus"));
            user.same(user.selected_text(QStringLiteral("text_vrd_0")), QStringLiteral("5"),
                      QStringLiteral("what a digit replaces"));
            discard(user);
        });
    }

    void a_click_on_a_tab_leads_to_the_first_box()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([&](hand& user) {
            user.type(QStringLiteral("11"));
            user.click_tab(tabs, 7);
            user.same(user.focus(), QStringLiteral("text_vrd_0"), QStringLiteral("focus"));
            user.type(QStringLiteral("3"));
            user.same(user.text(QStringLiteral("text_vrd_0")), QStringLiteral("3"), QStringLiteral("box"));
            discard(user);
        });
    }

    void a_stored_round_comes_back_in_either_language_data() { both_languages(); }
    void a_stored_round_comes_back_in_either_language()
    {
        QFETCH(bool, french);
        const round_store store(true);
        store.add_two_courses();
        in_keyed_round([](hand& user) {
            user.choose(QStringLiteral("cmb_courses"), 1);
            user.click(QStringLiteral("text_vrd_0"));
            user.type(QStringLiteral("12345678901"));
            user.click_tab(tabs, 18);
            user.type(QStringLiteral("21110000001"));
            accept(user);
        });
        is_french = french;
        in_stored_round(key_of_keyed_round(), [](hand& user) {
            user.same(boxes(user), QStringLiteral("1 2 3 4 5 6 7 8 9 0 1"), QStringLiteral("hole 1"));
            user.same(user.text(QStringLiteral("text_2")), QStringLiteral("2024-06-14"),
                      QStringLiteral("date"));
            user.same(user.text(QStringLiteral("text_3")), QStringLiteral("09:30:00"),
                      QStringLiteral("time"));
            user.same(user.selected(QStringLiteral("cmb_courses")), 1, QStringLiteral("course"));
            user.same(user.text(QStringLiteral("text_38")), QStringLiteral("5"), QStringLiteral("par"));
            user.check(!user.enabled(QStringLiteral("b_getdat")), QStringLiteral("no other date"));
            user.click_tab(tabs, 18);
            user.same(boxes(user), QStringLiteral("2 1 1 1 0 0 0 0 0 0 1"), QStringLiteral("hole 18"));
            discard(user);
        });
    }

    void a_round_never_played_shows_noughts()
    {
        const round_store store;
        store.add_two_courses();
        store.add_round(key_of_keyed_round());
        in_stored_round(key_of_keyed_round(), [](hand& user) {
            user.same(boxes(user), QStringLiteral("0 0 0 0 0 0 0 0 0 0 0"), QStringLiteral("boxes"));
            user.same(user.text(QStringLiteral("text_vrd_3")), QStringLiteral("0"), QStringLiteral("shots"));
            user.same(user.text(QStringLiteral("text_36")), QStringLiteral("0"), QStringLiteral("penalties"));
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
                // A real wheel would bring the keyboard along.
                QVERIFY(target->focusPolicy() != Qt::WheelFocus);
            });
            stands_on(user, 1);
            user.same(user.selected(QStringLiteral("cmb_courses")), 0, QStringLiteral("course"));
            user.same(user.selected(QStringLiteral("conditions")), 0, QStringLiteral("weather"));
            user.same(user.text(QStringLiteral("Text1")), QStringLiteral("  "),
                      QStringLiteral("temperature"));
            discard(user);
        });
    }

    void another_course_brings_its_card()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([&](hand& user) {
            user.type(QStringLiteral("112"));
            user.same(user.text(QStringLiteral("text_32")), QStringLiteral("1"), QStringLiteral("par 4"));
            user.choose(QStringLiteral("cmb_courses"), 1);
            user.same(user.text(QStringLiteral("text_38")), QStringLiteral("5"), QStringLiteral("par"));
            user.same(user.text(QStringLiteral("text_32")), QStringLiteral(" "), QStringLiteral("par 4"));
            user.same(user.text(QStringLiteral("text_24")), QStringLiteral("1"), QStringLiteral("birdie"));
            user.same(boxes(user).left(5), QStringLiteral("1 1 2"), QStringLiteral("boxes"));
            accept(user);
        });
        QCOMPARE(store.of_round(QStringLiteral("games"), QStringLiteral("CODEF || field")),
                 QStringLiteral("BETA-6Beta"));
        QCOMPARE(store.of_round(QStringLiteral("games2"), QStringLiteral("FC")), QStringLiteral("BETA-6"));
    }
};

QTEST_MAIN(test_round_holes)

#include "test_round_holes.moc"
