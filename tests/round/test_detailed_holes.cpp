#include <QComboBox>
#include <QTest>

#include "f_new_round.h"
#include "languages.h"
#include "round_windows.h"
#include "told_shots.h"

using namespace verdane;
using namespace verdane::testing;

namespace {

const QString nothing = QStringLiteral("0 0 0 0 0 0 0 0 0 0 0");

}  // namespace

class test_detailed_holes : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_hole_tab_is_refused_twice_where_a_shot_is_incomplete_data() { both_languages(); }
    void a_hole_tab_is_refused_twice_where_a_shot_is_incomplete()
    {
        QFETCH(bool, french);
        const golfer_store round(french);
        in_keyed_round([&](hand& user) {
            go_to_detailed_page(user);
            leave_second_shot_open(user);
            user.click_tab(hole_tabs, 2);
            user.answer(refusal_of_shot(QStringLiteral(" 2")));
            user.answer(refusal_of_shot(QStringLiteral(" 2")));
            user.wait_for_window(round_window());
            user.same(user.selected(hole_tabs), 0, QStringLiteral("tab"));
            user.same(user.grid_rows(details), 2, QStringLiteral("rows"));
            user.choose(QStringLiteral("cmb_courses"), 0);
            tell_shot(user, 1, 9, QString(), 2);
            user.click_tab(hole_tabs, 2);
            user.same(user.selected(hole_tabs), 1, QStringLiteral("tab"));
            go_to_quick_page(user);
            discard(user);
        });
    }

    void a_blank_hole_is_left_with_one_message_and_has_no_rows_data() { both_languages(); }
    void a_blank_hole_is_left_with_one_message_and_has_no_rows()
    {
        QFETCH(bool, french);
        const golfer_store round(french);
        in_keyed_round([&](hand& user) {
            go_to_detailed_page(user);
            user.click_tab(hole_tabs, 2);
            user.answer(refusal_of_shot(QStringLiteral(" 1")));
            user.wait_for_window(round_window());
            user.same(user.selected(hole_tabs), 1, QStringLiteral("tab"));
            user.same(user.cell(details, 0, 1), QStringLiteral("1"), QStringLiteral("a blank shot"));
            user.same(round.shots(1), 0, QStringLiteral("shots of hole 1"));
            user.click_tab(hole_tabs, 1);
            user.answer(refusal_of_shot(QStringLiteral(" 1")));
            user.same(round.shots(1), 1, QStringLiteral("a new blank shot of hole 1"));
            go_to_quick_page(user);
            user.same(round.shots(1), 0, QStringLiteral("shots of hole 1"));
            discard(user);
        });
    }

    void holes_are_told_one_after_the_other_and_come_back()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            go_to_detailed_page(user);
            tell_hole(user);
            user.click_tab(hole_tabs, 2);
            tell_shot(user, 0, 1, QStringLiteral("0"), 2);
            user.click_tab(hole_tabs, 1);
            user.same(user.grid_rows(details), 4, QStringLiteral("rows of hole 1"));
            user.same(user.cursor(details), QStringLiteral("0,2"), QStringLiteral("cursor"));
            user.same(boxes(user), told_hole, QStringLiteral("boxes of hole 1"));
            user.same(stored_figures(round.store, 2), QStringLiteral("0 1 0 1 0 0 0 0 0 0 0"),
                      QStringLiteral("hole 2"));
            accept(user);
        });
        QCOMPARE(stored_figures(round.store, 1), told_hole);
        QCOMPARE(stored_putts(round.store, 1), told_putts);
        QVERIFY(stored_shots(round.store, 2).endsWith(u"cal"));
    }

    void the_list_of_holes_leads_on_like_the_tabs()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            go_to_detailed_page(user);
            tell_hole(user);
            user.choose(QStringLiteral("cmb_holes"), 1);
            user.same(user.selected(hole_tabs), 1, QStringLiteral("tab"));
            user.same(user.grid_rows(details), 1, QStringLiteral("rows of hole 2"));
            user.same(boxes(user), nothing, QStringLiteral("boxes of hole 2"));
            go_to_quick_page(user);
            discard(user);
        });
        QCOMPARE(stored_figures(round.store, 1), told_hole);
    }

    void the_list_of_holes_stays_where_the_tabs_would()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            go_to_detailed_page(user);
            leave_second_shot_open(user);
            user.look([] {
                dynamic_cast<QComboBox&>(
                    *open_form(u"f_new_round")->findChild<QComboBox*>(QStringLiteral("cmb_holes")))
                    .setFocus();
            });
            user.key(Qt::Key_Down);
            user.answer(refusal_of_shot(QStringLiteral(" 2")));
            user.answer(refusal_of_shot(QStringLiteral(" 2")));
            user.wait_for_window(round_window());
            user.same(user.selected(QStringLiteral("cmb_holes")), 0, QStringLiteral("list"));
            user.same(user.selected(hole_tabs), 0, QStringLiteral("tab"));
            with_round(user, [](f_new_round& window) { window.unload(); });
        });
    }

    void a_hole_change_on_the_quick_page_leaves_the_shots_alone()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            go_to_detailed_page(user);
            tell_hole(user);
            go_to_quick_page(user);
            user.click_tab(hole_tabs, 5);
            user.type(QStringLiteral("3"));
            accept(user);
        });
        QCOMPARE(stored_figures(round.store, 1), told_hole);
        QCOMPARE(stored_figures(round.store, 5).left(5), QStringLiteral("3 0 0"));
        QCOMPARE(stored_putts(round.store, 5), QStringLiteral("0 0 0 0 0 0"));
        // The first shot keeps the length of its own hole.
        QCOMPARE(round.store.number(QStringLiteral("select before from Stat_rounds where shot = 1")), 101);
    }

    void an_incomplete_hole_left_by_the_quick_page_still_stops_OK()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            go_to_detailed_page(user);
            leave_second_shot_open(user);
            go_to_quick_page(user);
            user.answer(refusal_of_shot(QStringLiteral(" 2")));
            user.check(user.visible(QStringLiteral("text_vrd_0")), QStringLiteral("the quick page"));
            user.same(boxes(user), QStringLiteral("1 0 0 2 0 0 0 0 0 0 0"), QStringLiteral("boxes"));
            user.click(ok_button);
            user.answer(refusal_of_shot(QStringLiteral(" 2")));
            user.wait_for_window(round_window());
            go_to_detailed_page(user);
            tell_shot(user, 1, 9, QString(), 2);
            accept(user);
        });
        QCOMPARE(stored_figures(round.store, 1), QStringLiteral("1 1 0 2 0 0 0 0 0 0 0"));
    }
};

QTEST_MAIN(test_detailed_holes)

#include "test_detailed_holes.moc"
