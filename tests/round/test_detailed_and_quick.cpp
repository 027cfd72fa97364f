#include <QTest>

#include "round/f_new_round.h"
#include "tests/round/round_windows.h"
#include "tests/round/told_shots.h"
#include "tests/support/languages.h"

using namespace verdane;
using namespace verdane::testing;

class test_detailed_and_quick : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void quick_figures_survive_a_look_at_the_detailed_page()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            user.type(QStringLiteral("11200001000"));
            go_to_detailed_page(user);
            go_to_quick_page(user);
            user.same(boxes(user), QStringLiteral("1 1 2 0 0 0 0 1 0 0 0"), QStringLiteral("boxes"));
            user.same(user.focus(), QStringLiteral("text_vrd_0"), QStringLiteral("focus"));
            accept(user);
        });
        QCOMPARE(stored_figures(round.store, 1), QStringLiteral("1 1 2 0 0 0 0 1 0 0 0"));
        QCOMPARE(round.shots(1), 0);
    }

    void shots_overwrite_quick_figures()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            user.type(QStringLiteral("99999999999"));
            go_to_detailed_page(user);
            tell_hole(user);
            go_to_quick_page(user);
            user.same(boxes(user), told_hole, QStringLiteral("boxes"));
            user.click_tab(hole_tabs, 2);
            discard(user);
        });
        QCOMPARE(stored_figures(round.store, 1), told_hole);
        QCOMPARE(stored_putts(round.store, 1), told_putts);
    }

    void shots_of_a_hole_of_par_0_fold_into_its_boxes()
    {
        const golfer_store round;
        round.store.store.write(QStringLiteral("update field_info set par_1 = 0"));
        in_keyed_round([&](hand& user) {
            go_to_detailed_page(user);
            tell_hole(user);
            go_to_quick_page(user);
            user.same(boxes(user), told_hole, QStringLiteral("boxes"));
            user.same(user.text(QStringLiteral("text_38")), QStringLiteral("0"), QStringLiteral("par"));
            // Four strokes are at least three over a par of 0.
            user.same(user.text(QStringLiteral("text_33")), QStringLiteral("1"), QStringLiteral("triple"));
            accept(user);
        });
        QCOMPARE(round.shots(1), 4);
        QCOMPARE(round.store.text(QStringLiteral("select distinct normal from Stat_rounds")),
                 QStringLiteral("0"));
        QCOMPARE(stored_figures(round.store, 1), told_hole);
        QCOMPARE(stored_putts(round.store, 1), told_putts);
    }

    void quick_figures_typed_over_a_detailed_hole_are_stored()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            go_to_detailed_page(user);
            tell_hole(user);
            go_to_quick_page(user);
            user.click(QStringLiteral("text_vrd_0"));
            user.type(QStringLiteral("3"));
            accept(user);
        });
        QCOMPARE(stored_figures(round.store, 1), QStringLiteral("3 1 2 2 0 0 0 0 0 0 0"));
        QCOMPARE(round.shots(1), 4);
    }

    void a_click_on_the_quick_tab_when_it_is_up_changes_nothing()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            go_to_detailed_page(user);
            tell_hole(user);
            go_to_quick_page(user);
            user.click_tab(hole_tabs, 2);
            user.type(QStringLiteral("5"));
            go_to_quick_page(user);
            user.same(user.text(QStringLiteral("text_vrd_0")), QStringLiteral("5"), QStringLiteral("box"));
            discard(user);
        });
        QCOMPARE(stored_figures(round.store, 1), told_hole);
    }

    void Command4_opens_the_shots_of_the_hole_data() { both_languages(); }
    void Command4_opens_the_shots_of_the_hole()
    {
        QFETCH(bool, french);
        const golfer_store round(french);
        round.store.add_round(key_of_keyed_round());
        add_told_shot(round.store, 3, 1, 1, 0, QStringLiteral("Verges"), 1);
        in_stored_round(key_of_keyed_round(), [&](hand& user) {
            user.click_tab(hole_tabs, 3);
            user.click(QStringLiteral("Command4"));
            user.check(user.visible(details), QStringLiteral("the detailed page"));
            user.same(user.selected(QStringLiteral("TabStrip2")), 1, QStringLiteral("tab"));
            user.same(user.cell(details, 0, 2), QStringLiteral("D"), QStringLiteral("club"));
            user.click(QStringLiteral("Command4"));
            user.same(user.cell(details, 0, 2), QStringLiteral("D"), QStringLiteral("club"));
            accept(user);
        });
        QCOMPARE(stored_figures(round.store, 3), QStringLiteral("1 0 0 1 0 0 0 0 0 0 0"));
    }

    void without_a_date_no_shots_are_opened_data() { both_languages(); }
    void without_a_date_no_shots_are_opened()
    {
        QFETCH(bool, french);
        const golfer_store round(french);
        in_keyed_round([&](hand& user) {
            with_round(user, [](f_new_round& window) { window.date_value.clear(); });
            user.click(QStringLiteral("Command4"));
            user.answer({french ? QStringLiteral("Veuillez d'abord choisir la date de la ronde.")
                                : QStringLiteral("Please enter the round's date."),
                         QMessageBox::Critical, QStringLiteral("Verdane"), QMessageBox::Ok});
            user.check(!user.visible(QStringLiteral("Framedet")), QStringLiteral("no detailed page"));
            user.click_tab(QStringLiteral("TabStrip2"), 2);
            user.answer({QStringLiteral("Il faut choisir la date du ronde avant d'entrer les détails"),
                         QMessageBox::Critical, QStringLiteral("Verdane"), QMessageBox::Ok});
            user.check(user.visible(QStringLiteral("Framedet")), QStringLiteral("the detailed page"));
            user.same(user.grid_rows(details), 0, QStringLiteral("rows"));
            user.click(QStringLiteral("CommandSuiv"));
            user.click(QStringLiteral("CommandSup"));
            user.answer({french ? QStringLiteral("Choisissez le coup que vous voulez supprimer.")
                                : QStringLiteral("Please select the shot you wish to remove."),
                         QMessageBox::Critical, QStringLiteral("Verdane"), QMessageBox::Ok});
            user.same(round.store.number(QStringLiteral("select count(*) from Stat_rounds")), 0,
                      QStringLiteral("shots"));
            with_round(user, [](f_new_round& window) { window.unload(); });
        });
    }

    void shots_of_other_rounds_are_never_touched()
    {
        const golfer_store round;
        round.store.store.write(QStringLiteral(
            "insert into Stat_rounds (date, hole, shot, before, stickval, shot_type_value) values "
            "('20230101080000', 1, 1, 77, 0, 0)"));
        in_keyed_round([&](hand& user) {
            user.type(QStringLiteral("112"));
            user.click_tab(QStringLiteral("TabStrip2"), 1);
            user.click_tab(hole_tabs, 2);
            accept(user);
        });
        QCOMPARE(
            round.store.text(QStringLiteral("select before || ' ' || shot || ' ' || coalesce(normal, '-') "
                                            "from Stat_rounds")),
            QStringLiteral("77 1 -"));
        QCOMPARE(stored_figures(round.store, 1).left(5), QStringLiteral("1 1 2"));
    }

    void the_costs_are_opened_from_the_detailed_page_which_goes_on()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            go_to_detailed_page(user);
            tell_hole(user);
            user.click_cell(details, 2, 3);
            user.click(QStringLiteral("Command2"));
            user.wait_for_window(QStringLiteral("f_cost"));
            user.fill(QStringLiteral("cost_0"), QStringLiteral("25"));
            user.click(QStringLiteral("OKButton"));
            user.wait_until_gone(QStringLiteral("f_cost"));
            user.wait_for_window(round_window());
            user.same(user.text(QStringLiteral("text_7")), QStringLiteral("25"), QStringLiteral("costs"));
            user.same(user.cursor(details), QStringLiteral("2,3"), QStringLiteral("cursor"));
            user.same(user.focus(), details, QStringLiteral("focus"));
            user.same(user.grid_rows(details), 4, QStringLiteral("rows"));
            accept(user);
        });
        QCOMPARE(stored_figures(round.store, 1), told_hole);
        QCOMPARE(round.store.at(QStringLiteral("cost"), 1), QStringLiteral("25"));
    }

    void a_shot_that_is_being_told_is_there_when_the_costs_are_closed()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            go_to_detailed_page(user);
            tell_shot(user, 0, 3, QString(), 0);
            user.click(QStringLiteral("Command2"));
            user.close_window(QStringLiteral("f_cost"));
            user.wait_until_gone(QStringLiteral("f_cost"));
            user.wait_for_window(round_window());
            user.same(user.cell(details, 0, 2), QStringLiteral("F3"), QStringLiteral("club"));
            with_round(user, [](f_new_round& window) { window.unload(); });
        });
        QCOMPARE(round.store.number(QStringLiteral("select stickval from Stat_rounds")), 3);
    }

    void the_window_is_as_large_after_the_detailed_page_as_before_data() { both_languages(); }
    void the_window_is_as_large_after_the_detailed_page_as_before()
    {
        QFETCH(bool, french);
        const golfer_store round(french);
        in_keyed_round([&](hand& user) {
            const QSize before = user.picture(round_window()).size();
            user.check(before.width() <= 1200 && before.height() <= 720,
                       QStringLiteral("%1 x %2 pixels").arg(before.width()).arg(before.height()));
            go_to_detailed_page(user);
            tell_hole(user);
            user.picture(round_window());
            go_to_quick_page(user);
            const QSize after = user.picture(round_window()).size();
            user.same(after.width(), before.width(), QStringLiteral("width"));
            user.same(after.height(), before.height(), QStringLiteral("height"));
            accept(user);
        });
    }
};

QTEST_MAIN(test_detailed_and_quick)
#include "test_detailed_and_quick.moc"
