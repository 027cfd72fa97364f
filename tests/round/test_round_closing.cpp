#include <QLineEdit>
#include <QTest>

#include "base/Main_module.h"
#include "controls/main_frame.h"
#include "round/f_new_round.h"
#include "store/DataEnvironment1.h"
#include "tests/round/round_windows.h"
#include "tests/support/languages.h"
#include "tests/support/window_look.h"

using namespace verdane;
using namespace verdane::testing;

namespace {

const QString tabs = QStringLiteral("TabStrip1");

QString long_shots(const round_store& store, int hole)
{
    return store.at(QStringLiteral("games"), 3 * hole);
}

bool all_closed()
{
    for (Recordset& recordset : data_environment().recordsets()) {
        if (recordset.is_open())
            return false;
    }
    return true;
}

/// Stands in for the window with the list of rounds.
class a_round_list : public Form {
public:
    a_round_list() : Form(u"f_games") {}
};

void accept_costs(hand& user, const QString& amount)
{
    user.click(QStringLiteral("Command2"));
    user.wait_for_window(QStringLiteral("f_cost"));
    user.fill(QStringLiteral("cost_0"), amount);
    user.click(QStringLiteral("OKButton"));
    user.wait_until_gone(QStringLiteral("f_cost"));
    user.wait_for_window(round_window());
}

}  // namespace

class test_round_closing : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void OK_stores_and_closes_without_a_word_data() { both_languages(); }
    void OK_stores_and_closes_without_a_word()
    {
        QFETCH(bool, french);
        const round_store store(french);
        store.add_two_courses();
        in_keyed_round([](hand& user) {
            user.same(user.text(QStringLiteral("Command1_4")), QStringLiteral("OK"),
                      QStringLiteral("button"));
            user.type(QStringLiteral("4"));
            accept(user);
        });
        QCOMPARE(long_shots(store, 1), QStringLiteral("4"));
        QCOMPARE(
            store.number(QStringLiteral("select count(*) from cost where date = '20240614093000' and "
                                        "fg + cm + vt + ft + ba + tee + tex + nrt + lg + bs + ln + au = 0")),
            1);
        QCOMPARE(plain(Main_module::round_key_count), 1);
        QCOMPARE(Main_module::round_keys[0], key_of_keyed_round());
    }

    void Yes_stores_and_says_so_data() { both_languages(); }
    void Yes_stores_and_says_so()
    {
        QFETCH(bool, french);
        const round_store store(french);
        store.add_two_courses();
        in_keyed_round([&](hand& user) {
            user.same(user.text(QStringLiteral("Command1_2")),
                      french ? QStringLiteral("Annuler") : QStringLiteral("Cancel"),
                      QStringLiteral("button"));
            user.type(QStringLiteral("4"));
            user.click(QStringLiteral("Command1_2"));
            user.answer(question_on_closing(), QMessageBox::Yes);
            user.answer(notice_of_save());
        });
        QCOMPARE(long_shots(store, 1), QStringLiteral("4"));
    }

    void No_keeps_the_holes_that_were_left_and_drops_the_one_on_screen()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([](hand& user) {
            user.type(QStringLiteral("4"));
            user.click_tab(tabs, 2);
            user.type(QStringLiteral("5"));
            discard(user);
        });
        QCOMPARE(long_shots(store, 1), QStringLiteral("4"));
        QCOMPARE(long_shots(store, 2), QStringLiteral("null"));
    }

    void Cancel_at_the_question_stays()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([](hand& user) {
            user.type(QStringLiteral("4"));
            user.click(QStringLiteral("Command1_2"));
            user.answer(question_on_closing(), QMessageBox::Cancel);
            user.wait_for_window(round_window());
            user.same(user.text(QStringLiteral("text_vrd_0")), QStringLiteral("4"), QStringLiteral("box"));
            discard(user);
        });
        QCOMPARE(store.number(QStringLiteral("select count(*) from games")), 0);
    }

    void Escape_and_the_title_bar_ask_like_Cancel()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([](hand& user) {
            user.key(Qt::Key_Escape);
            user.answer(question_on_closing(), QMessageBox::Cancel);
            user.wait_for_window(round_window());
            user.close_window(round_window());
            user.answer(question_on_closing(), QMessageBox::No);
        });
        QCOMPARE(store.number(QStringLiteral("select count(*) from games")), 0);
    }

    void an_untouched_stored_round_asks_too()
    {
        const round_store store;
        store.add_two_courses();
        store.add_round(key_of_keyed_round());
        in_stored_round(key_of_keyed_round(), [](hand& user) { discard(user); });
        QCOMPARE(long_shots(store, 1), QStringLiteral("null"));
        QCOMPARE(plain(Main_module::round_key_count), 0);
    }

    void a_round_with_nothing_to_save_closes_without_a_question()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([](hand& user) {
            with_round(user, [](f_new_round& window) { window.needSave = false; });
            user.click(QStringLiteral("Command1_2"));
        });
        QVERIFY(all_closed());
    }

    void without_a_date_nothing_is_stored_and_the_window_stays_data() { both_languages(); }
    void without_a_date_nothing_is_stored_and_the_window_stays()
    {
        QFETCH(bool, french);
        const round_store store(french);
        store.add_two_courses();
        in_keyed_round([](hand& user) {
            with_round(user, [](f_new_round& window) { window.text(2).clear(); });
            user.click(QStringLiteral("Command1_2"));
            user.answer(question_on_closing(), QMessageBox::Yes);
            user.answer(refusal_without_date());
            user.wait_for_window(round_window());
            discard(user);
        });
        QCOMPARE(store.number(QStringLiteral("select count(*) from games")), 0);
    }

    void every_save_adds_the_key_to_the_list_once_more()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([](hand& user) {
            user.click_tab(tabs, 2);
            user.click_tab(tabs, 3);
            accept(user);
        });
        QCOMPARE(plain(Main_module::round_key_count), 3);
        QCOMPARE(Main_module::round_keys[2], key_of_keyed_round());
    }

    void a_cost_row_that_is_gone_is_added_at_the_save()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([&](hand& user) {
            with_round(user, [](f_new_round&) { data_environment().rscost.CancelUpdate(); });
            user.click_tab(tabs, 2);
            user.same(store.number(QStringLiteral("select count(*) from cost where date = '20240614093000'")),
                      1, QStringLiteral("rows of costs"));
            discard(user);
        });
        QCOMPARE(store.at(QStringLiteral("cost"), 12), QStringLiteral("0"));
    }

    void accepted_costs_outlast_the_round_that_is_given_up_and_are_those_of_the_next_at_its_moment()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([&](hand& user) {
            accept_costs(user, QStringLiteral("25"));
            discard(user);
        });
        QCOMPARE(store.number(QStringLiteral("select count(*) from games")), 0);
        QCOMPARE(store.text(QStringLiteral("select date || ' ' || fg from cost")),
                 QString(key_of_keyed_round() + u" 25"));
        in_keyed_round([&](hand& user) {
            user.same(user.text(QStringLiteral("text_7")), QStringLiteral("0"), QStringLiteral("costs"));
            // The save finds the round's costs by its key: the older row.
            user.click_tab(tabs, 2);
            user.click(QStringLiteral("Command2"));
            user.wait_for_window(QStringLiteral("f_cost"));
            user.same(user.text(QStringLiteral("cost_0")), QStringLiteral("25"), QStringLiteral("amount"));
            user.click(QStringLiteral("OKButton"));
            user.wait_until_gone(QStringLiteral("f_cost"));
            accept(user);
        });
        QCOMPARE(store.text(QStringLiteral("select group_concat(fg) from cost")), QStringLiteral("25,0"));
        in_stored_round(key_of_keyed_round(), [](hand& user) {
            user.same(user.text(QStringLiteral("text_7")), QStringLiteral("25"), QStringLiteral("costs"));
            discard(user);
        });
    }

    void the_menu_is_locked_while_the_window_works()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([&](hand& user) {
            user.check(store.frame.locked, QStringLiteral("the menu is locked"));
            user.click(QStringLiteral("Command1_2"));
            user.answer(question_on_closing(), QMessageBox::No);
        });
        QVERIFY(!store.frame.locked);
        QCOMPARE(store.frame.activations, 1);
    }

    void the_window_leaves_no_recordset_open()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([](hand& user) {
            with_round(user, [](f_new_round&) { QVERIFY(data_environment().rsStat_rounds.is_open()); });
            accept(user);
        });
        QVERIFY(all_closed());
        QCOMPARE(data_environment().rsStat_rounds.Source(), QStringLiteral("select * from stat_rounds"));
    }

    void the_list_of_rounds_goes_when_a_round_opens()
    {
        const round_store store;
        store.add_two_courses();
        store.add_round(key_of_keyed_round());
        a_round_list list;
        play([&] { list.show_modal(); },
             [&](hand& user) {
                 user.wait_for_window(QStringLiteral("f_games"));
                 in_stored_round_over(user, key_of_keyed_round());
                 user.wait_for_window(round_window());
                 user.wait_until_gone(QStringLiteral("f_games"));
                 discard(user);
             });
        QVERIFY(!list.is_loaded());
    }

    void a_round_without_its_second_row_is_told_and_does_not_open_data() { both_languages(); }
    void a_round_without_its_second_row_is_told_and_does_not_open()
    {
        QFETCH(bool, french);
        const round_store store(french);
        store.add_two_courses();
        store.add_partner(QStringLiteral("Gagnon"), QStringLiteral("Luc"), 5);
        store.add_round(key_of_keyed_round());
        store.store.write(QStringLiteral("delete from games2"));
        open_round_that_refuses(key_of_keyed_round(), [](hand& user) {
            user.answer({QStringLiteral("Error : games2 record not found"), QMessageBox::NoIcon,
                         QStringLiteral("Verdane"), QMessageBox::Ok});
        });
        QVERIFY(all_closed());
        QVERIFY(!store.frame.locked);
    }

    void the_window_measures_1024_by_668_pixels_on_both_pages_data() { both_languages(); }
    void the_window_measures_1024_by_668_pixels_on_both_pages()
    {
        QFETCH(bool, french);
        const round_store store(french);
        store.add_two_courses();
        in_keyed_round([](hand& user) {
            with_round(user, [](f_new_round& window) {
                QCOMPARE(window.size(), QSize(1024, 668));
                QVERIFY(!scrolls(window));
                QCOMPARE(current_form.data(), static_cast<Form*>(&window));
            });
            user.click_tab(QStringLiteral("TabStrip2"), 2);
            with_round(user, [](f_new_round& window) {
                QCOMPARE(window.size(), QSize(1024, 668));
                QVERIFY(!scrolls(window));
            });
            user.click_tab(QStringLiteral("TabStrip2"), 1);
            discard(user);
        });
    }
};

QTEST_MAIN(test_round_closing)

#include "test_round_closing.moc"
