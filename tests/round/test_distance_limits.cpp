#include <QListWidget>
#include <QTest>

#include <functional>

#include "round/f_new_round.h"
#include "tests/round/entered_shots.h"
#include "tests/round/round_windows.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

const QString cell = u"cell_being_typed"_s;
const QString too_far = u"32768"_s;

/// Enters a drive with 60 yards left and replaces that distance by one that exceeds 16 bits.
void type_too_far(hand& user)
{
    open_detailed_page(user);
    enter_shot(user, 0, 1, u"60"_s, 1);
    user.click_cell(details, 0, 3);
    user.type(too_far);
}

using way_to_close = std::function<void(hand&)>;

way_to_close by_key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    return [=](hand& user) { user.key(key, modifiers); };
}

way_to_close by_click(const char* control)
{
    return [name = QString::fromLatin1(control)](hand& user) { user.click(name); };
}

void rows_of_keys()
{
    QTest::newRow("Enter") << by_key(Qt::Key_Return);
    QTest::newRow("Tab") << by_key(Qt::Key_Tab);
    QTest::newRow("Shift+Tab") << by_key(Qt::Key_Backtab, Qt::ShiftModifier);
    QTest::newRow("Down") << by_key(Qt::Key_Down);
    QTest::newRow("PageDown") << by_key(Qt::Key_PageDown);
    QTest::newRow("the page by key") << by_key(Qt::Key_1, Qt::ControlModifier);
    QTest::newRow("the next shot by key") << by_key(Qt::Key_N, Qt::ControlModifier);
    QTest::newRow("the removal by key") << by_key(Qt::Key_Delete, Qt::ControlModifier);
    QTest::newRow("the putt report by key") << by_key(Qt::Key_P, Qt::ControlModifier);
}

void rows_of_clicks()
{
    for (const char* control :
         {"Command1_4", "Command1_2", "CommandSuiv", "CommandSup", "Command2", "Command4", "b_putts",
          "cmb_courses", "cmb_holes", "conditions", "Text1", "pList"})
        QTest::newRow(control) << by_click(control);
    QTest::newRow("a hole tab") << way_to_close([](hand& user) { user.click_tab(hole_tabs, 2); });
    QTest::newRow("a page tab") << way_to_close([](hand& user) { open_quick_page(user); });
    QTest::newRow("another cell") << way_to_close([](hand& user) { user.click_cell(details, 0, 4); });
    QTest::newRow("a cell with a menu") << way_to_close([](hand& user) { user.click_cell(details, 0, 5); });
    QTest::newRow("a partner") << way_to_close([](hand& user) { user.click_row(u"pList"_s, 0); });
    QTest::newRow("the title bar") << way_to_close([](hand& user) { user.close_window(round_window()); });
}

/// The state that leaving the cell could change.
QString state_of(hand& user)
{
    QString partner;
    with_round(user, [&](f_new_round& window) {
        partner =
            find_control<QListWidget>(window, u"pList"_s).selectedItems().isEmpty() ? u"none"_s : u"one"_s;
    });
    return u"cursor %1, distance %2, shots %3, hole %4, page %5, partner %6"_s
        .arg(user.cursor(details), user.cell(details, 0, 3))
        .arg(user.grid_rows(details))
        .arg(user.selected(hole_tabs))
        .arg(user.selected(u"TabStrip2"_s))
        .arg(partner);
}

}  // namespace

Q_DECLARE_METATYPE(way_to_close)

/// A distance of more than 32,767 stays in its cell until it is corrected or discarded.
class test_distance_limits : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void leaving_the_cell_neither_commits_nor_discards_the_distance_data()
    {
        QTest::addColumn<way_to_close>("leave");
        rows_of_keys();
        rows_of_clicks();
    }
    void leaving_the_cell_neither_commits_nor_discards_the_distance()
    {
        QFETCH(way_to_close, leave);
        const golfer_store round;
        round.store.add_partner(u"Ann"_s, u"Berg"_s, 77);
        in_keyed_round([&](hand& user) {
            type_too_far(user);
            const int bells = user.bells();
            leave(user);
            user.same(user.focus(), cell, u"focus"_s);
            user.same(user.selected_text(cell), too_far, u"selection"_s);
            user.same(user.bells() - bells, 1, u"bells"_s);
            user.same(state_of(user), u"cursor 0,3, distance 60, shots 1, hole 0, page 1, partner none"_s,
                      u"state"_s);
            user.type(u"45"_s);
            user.key(Qt::Key_Return);
            user.same(user.cell(details, 0, 3), u"45"_s, u"distance"_s);
            accept(user);
        });
        QVERIFY(stored_shots(round.store, 1).startsWith(u"1 101>45 "));
    }

    void Escape_discards_the_distance_and_the_window_closes()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            type_too_far(user);
            user.key(Qt::Key_Return);
            user.key(Qt::Key_Escape);
            user.same(user.focus(), details, u"focus"_s);
            user.same(user.cell(details, 0, 3), u"60"_s, u"distance"_s);
            accept(user);
        });
        QVERIFY(stored_shots(round.store, 1).startsWith(u"1 101>60 "));
    }

    void the_largest_distance_is_stored()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            type_too_far(user);
            user.key(Qt::Key_Return);
            user.type(u"32767"_s);
            user.key(Qt::Key_Return);
            user.same(user.cell(details, 0, 3), u"32767"_s, u"distance"_s);
            accept(user);
        });
        QVERIFY(stored_shots(round.store, 1).startsWith(u"1 101>32767 "));
    }
};

QTEST_MAIN(test_distance_limits)

#include "test_distance_limits.moc"
