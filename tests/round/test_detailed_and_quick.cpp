#include <QTest>

#include "round/f_new_round.h"
#include "tests/round/entered_shots.h"
#include "tests/round/round_windows.h"
#include "tests/support/languages.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

class test_detailed_and_quick : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void quick_figures_are_kept_when_the_detailed_page_is_only_viewed()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            user.type(u"11200001000"_s);
            open_detailed_page(user);
            open_quick_page(user);
            user.same(boxes(user), u"1 1 2 0 0 0 0 1 0 0 0"_s, u"boxes"_s);
            user.same(user.focus(), u"text_vrd_0"_s, u"focus"_s);
            accept(user);
        });
        QCOMPARE(stored_figures(round.store, 1), u"1 1 2 0 0 0 0 1 0 0 0"_s);
        QCOMPARE(round.shots(1), 0);
    }

    void shots_overwrite_quick_figures()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            user.type(u"99999999999"_s);
            open_detailed_page(user);
            enter_hole(user);
            open_quick_page(user);
            user.same(boxes(user), entered_figures, u"boxes"_s);
            user.click_tab(hole_tabs, 2);
            discard(user);
        });
        QCOMPARE(stored_figures(round.store, 1), entered_figures);
        QCOMPARE(stored_putts(round.store, 1), entered_putts);
    }

    void shots_of_a_hole_of_par_0_are_summed_in_its_boxes()
    {
        const golfer_store round;
        round.store.store.write(u"update field_info set par_1 = 0"_s);
        in_keyed_round([&](hand& user) {
            open_detailed_page(user);
            enter_hole(user);
            open_quick_page(user);
            user.same(boxes(user), entered_figures, u"boxes"_s);
            user.same(user.text(u"text_38"_s), u"0"_s, u"par"_s);
            // Four strokes are three or more over a par of 0.
            user.same(user.text(u"text_33"_s), u"1"_s, u"triple"_s);
            accept(user);
        });
        QCOMPARE(round.shots(1), 4);
        QCOMPARE(round.store.text(u"select distinct normal from Stat_rounds"_s), u"0"_s);
        QCOMPARE(stored_figures(round.store, 1), entered_figures);
        QCOMPARE(stored_putts(round.store, 1), entered_putts);
    }

    void quick_figures_typed_over_a_detailed_hole_are_stored()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            open_detailed_page(user);
            enter_hole(user);
            open_quick_page(user);
            user.click(u"text_vrd_0"_s);
            user.type(u"3"_s);
            accept(user);
        });
        QCOMPARE(stored_figures(round.store, 1), u"3 1 2 2 0 0 0 0 0 0 0"_s);
        QCOMPARE(round.shots(1), 4);
    }

    void a_click_on_the_selected_quick_tab_changes_nothing()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            open_detailed_page(user);
            enter_hole(user);
            open_quick_page(user);
            user.click_tab(hole_tabs, 2);
            user.type(u"5"_s);
            open_quick_page(user);
            user.same(user.text(u"text_vrd_0"_s), u"5"_s, u"box"_s);
            discard(user);
        });
        QCOMPARE(stored_figures(round.store, 1), entered_figures);
    }

    void Command4_opens_the_shots_of_the_hole_data() { both_languages(); }
    void Command4_opens_the_shots_of_the_hole()
    {
        QFETCH(bool, french);
        const golfer_store round(french);
        round.store.add_round(key_of_keyed_round());
        add_complete_shot(round.store, 3, 1, 1, 0, u"Verges"_s, 1);
        in_stored_round(key_of_keyed_round(), [&](hand& user) {
            user.click_tab(hole_tabs, 3);
            user.click(u"Command4"_s);
            user.check(user.visible(details), u"the detailed page"_s);
            user.same(user.selected(u"TabStrip2"_s), 1, u"tab"_s);
            user.same(user.cell(details, 0, 2), u"D"_s, u"club"_s);
            user.click(u"Command4"_s);
            user.same(user.cell(details, 0, 2), u"D"_s, u"club"_s);
            accept(user);
        });
        QCOMPARE(stored_figures(round.store, 3), u"1 0 0 1 0 0 0 0 0 0 0"_s);
    }

    void without_a_date_no_shots_are_opened_data() { both_languages(); }
    void without_a_date_no_shots_are_opened()
    {
        QFETCH(bool, french);
        const golfer_store round(french);
        in_keyed_round([&](hand& user) {
            with_round(user, [](f_new_round& window) { window.set_date_value(QString()); });
            user.click(u"Command4"_s);
            user.answer({french ? u"Veuillez d'abord choisir la date de la ronde."_s
                                : u"Please enter the round's date."_s,
                         QMessageBox::Critical, u"Verdane"_s, QMessageBox::Ok});
            user.check(!user.visible(u"Framedet"_s), u"no detailed page"_s);
            user.click_tab(u"TabStrip2"_s, 2);
            user.answer({u"Il faut choisir la date du ronde avant d'entrer les détails"_s,
                         QMessageBox::Critical, u"Verdane"_s, QMessageBox::Ok});
            user.check(user.visible(u"Framedet"_s), u"the detailed page"_s);
            user.same(user.grid_rows(details), 0, u"rows"_s);
            user.click(u"CommandSuiv"_s);
            user.click(u"CommandSup"_s);
            user.answer({french ? u"Choisissez le coup que vous voulez supprimer."_s
                                : u"Please select the shot you wish to remove."_s,
                         QMessageBox::Critical, u"Verdane"_s, QMessageBox::Ok});
            user.same(round.store.number(u"select count(*) from Stat_rounds"_s), 0, u"shots"_s);
            with_round(user, [](f_new_round& window) { window.unload(); });
        });
    }

    void shots_of_other_rounds_are_not_changed()
    {
        const golfer_store round;
        round.store.store.write(
            u"insert into Stat_rounds (date, hole, shot, before, stickval, shot_type_value) values "
            u"('20230101080000', 1, 1, 77, 0, 0)"_s);
        in_keyed_round([&](hand& user) {
            user.type(u"112"_s);
            user.click_tab(u"TabStrip2"_s, 1);
            user.click_tab(hole_tabs, 2);
            accept(user);
        });
        QCOMPARE(round.store.text(u"select before || ' ' || shot || ' ' || coalesce(normal, '-') "
                                  u"from Stat_rounds"_s),
                 u"77 1 -"_s);
        QCOMPARE(stored_figures(round.store, 1).left(5), u"1 1 2"_s);
    }

    void the_costs_are_opened_from_the_detailed_page_which_keeps_its_state()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            open_detailed_page(user);
            enter_hole(user);
            user.click_cell(details, 2, 3);
            user.click(u"Command2"_s);
            user.wait_for_window(u"f_cost"_s);
            user.fill(u"cost_0"_s, u"25"_s);
            user.click(u"OKButton"_s);
            user.wait_until_closed(u"f_cost"_s);
            user.wait_for_window(round_window());
            user.same(user.text(u"text_7"_s), u"25"_s, u"costs"_s);
            user.same(user.cursor(details), u"2,3"_s, u"cursor"_s);
            user.same(user.focus(), details, u"focus"_s);
            user.same(user.grid_rows(details), 4, u"rows"_s);
            accept(user);
        });
        QCOMPARE(stored_figures(round.store, 1), entered_figures);
        QCOMPARE(round.store.at(u"cost"_s, 1), u"25"_s);
    }

    void an_incomplete_shot_is_kept_while_the_costs_are_open()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            open_detailed_page(user);
            enter_shot(user, 0, 3, QString(), 0);
            user.click(u"Command2"_s);
            user.close_window(u"f_cost"_s);
            user.wait_until_closed(u"f_cost"_s);
            user.wait_for_window(round_window());
            user.same(user.cell(details, 0, 2), u"F3"_s, u"club"_s);
            with_round(user, [](f_new_round& window) { window.unload(); });
        });
        QCOMPARE(round.store.number(u"select stickval from Stat_rounds"_s), 3);
    }

    void the_detailed_page_does_not_change_the_size_of_the_window_data() { both_languages(); }
    void the_detailed_page_does_not_change_the_size_of_the_window()
    {
        QFETCH(bool, french);
        const golfer_store round(french);
        in_keyed_round([&](hand& user) {
            const QSize before = user.picture(round_window()).size();
            user.check(before.width() <= 1200 && before.height() <= 720,
                       u"%1 x %2 pixels"_s.arg(before.width()).arg(before.height()));
            open_detailed_page(user);
            enter_hole(user);
            user.picture(round_window());
            open_quick_page(user);
            const QSize after = user.picture(round_window()).size();
            user.same(after.width(), before.width(), u"width"_s);
            user.same(after.height(), before.height(), u"height"_s);
            accept(user);
        });
    }
};

QTEST_MAIN(test_detailed_and_quick)
#include "test_detailed_and_quick.moc"
