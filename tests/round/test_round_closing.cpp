#include <QLineEdit>
#include <QTest>

#include "controls/Form.h"
#include "records/Main_module.h"
#include "round/f_new_round.h"
#include "store/DataEnvironment1.h"
#include "tests/round/round_windows.h"
#include "tests/support/languages.h"
#include "tests/support/window_look.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

const QString tabs = u"TabStrip1"_s;

QString long_shots(const round_store& store, int hole)
{
    return store.at(u"games"_s, 3 * hole);
}

bool all_closed()
{
    for (Recordset& recordset : data_environment().recordsets()) {
        if (recordset.is_open())
            return false;
    }
    return true;
}

/// A substitute for the list of rounds.
class a_round_list : public Form {
public:
    a_round_list() : Form(u"f_games") {}
};

void accept_costs(hand& user, const QString& amount)
{
    user.click(u"Command2"_s);
    user.wait_for_window(u"f_cost"_s);
    user.fill(u"cost_0"_s, amount);
    user.click(u"OKButton"_s);
    user.wait_until_closed(u"f_cost"_s);
    user.wait_for_window(round_window());
}

}  // namespace

class test_round_closing : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void OK_stores_and_closes_without_a_message_data() { both_languages(); }
    void OK_stores_and_closes_without_a_message()
    {
        QFETCH(bool, french);
        const round_store store(french);
        store.add_two_courses();
        in_keyed_round([](hand& user) {
            user.same(user.text(u"Command1_4"_s), u"OK"_s, u"button"_s);
            user.type(u"4"_s);
            accept(user);
        });
        QCOMPARE(long_shots(store, 1), u"4"_s);
        QCOMPARE(store.number(u"select count(*) from cost where date = '20240614093000' and "
                              u"fg + cm + vt + ft + ba + tee + tex + nrt + lg + bs + ln + au = 0"_s),
                 1);
        QCOMPARE(plain(Main_module::round_key_count), 1);
        QCOMPARE(Main_module::round_keys[0], key_of_keyed_round());
    }

    void Yes_stores_and_shows_a_notice_data() { both_languages(); }
    void Yes_stores_and_shows_a_notice()
    {
        QFETCH(bool, french);
        const round_store store(french);
        store.add_two_courses();
        in_keyed_round([&](hand& user) {
            user.same(user.text(u"Command1_2"_s), french ? u"Annuler"_s : u"Cancel"_s, u"button"_s);
            user.type(u"4"_s);
            user.click(u"Command1_2"_s);
            user.answer(question_on_closing(), QMessageBox::Yes);
            user.answer(notice_of_save());
        });
        QCOMPARE(long_shots(store, 1), u"4"_s);
    }

    void No_keeps_the_holes_that_were_left_and_discards_the_current_one()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([](hand& user) {
            user.type(u"4"_s);
            user.click_tab(tabs, 2);
            user.type(u"5"_s);
            discard(user);
        });
        QCOMPARE(long_shots(store, 1), u"4"_s);
        QCOMPARE(long_shots(store, 2), u"null"_s);
    }

    void Cancel_at_the_question_keeps_the_window_open()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([](hand& user) {
            user.type(u"4"_s);
            user.click(u"Command1_2"_s);
            user.answer(question_on_closing(), QMessageBox::Cancel);
            user.wait_for_window(round_window());
            user.same(user.text(u"text_vrd_0"_s), u"4"_s, u"box"_s);
            discard(user);
        });
        QCOMPARE(store.number(u"select count(*) from games"_s), 0);
    }

    void Escape_and_the_title_bar_show_the_question_of_Cancel()
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
        QCOMPARE(store.number(u"select count(*) from games"_s), 0);
    }

    void closing_an_untouched_stored_round_shows_the_question()
    {
        const round_store store;
        store.add_two_courses();
        store.add_round(key_of_keyed_round());
        in_stored_round(key_of_keyed_round(), [](hand& user) { discard(user); });
        QCOMPARE(long_shots(store, 1), u"null"_s);
        QCOMPARE(plain(Main_module::round_key_count), 0);
    }

    void a_round_with_nothing_to_save_closes_without_a_question()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([](hand& user) {
            with_round(user, [](f_new_round& window) {
                window.save_round(true);
                QVERIFY(!window.needSave());
            });
            user.click(u"Command1_2"_s);
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
            with_round(user,
                       [](f_new_round& window) { find_control<QLineEdit>(window, u"text_2"_s).clear(); });
            user.click(u"Command1_2"_s);
            user.answer(question_on_closing(), QMessageBox::Yes);
            user.answer(refusal_without_date());
            user.wait_for_window(round_window());
            discard(user);
        });
        QCOMPARE(store.number(u"select count(*) from games"_s), 0);
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

    void a_missing_cost_row_is_added_by_the_save()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([&](hand& user) {
            with_round(user, [](f_new_round&) { data_environment().rscost.CancelUpdate(); });
            user.click_tab(tabs, 2);
            user.same(store.number(u"select count(*) from cost where date = '20240614093000'"_s), 1,
                      u"rows of costs"_s);
            discard(user);
        });
        QCOMPARE(store.at(u"cost"_s, 12), u"0"_s);
    }

    void accepted_costs_of_a_discarded_round_are_those_of_the_next_with_its_key()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([&](hand& user) {
            accept_costs(user, u"25"_s);
            discard(user);
        });
        QCOMPARE(store.number(u"select count(*) from games"_s), 0);
        QCOMPARE(store.text(u"select date || ' ' || fg from cost"_s), QString(key_of_keyed_round() + u" 25"));
        in_keyed_round([&](hand& user) {
            user.same(user.text(u"text_7"_s), u"0"_s, u"costs"_s);
            // The save finds the costs of the round by its key, which is the older row.
            user.click_tab(tabs, 2);
            user.click(u"Command2"_s);
            user.wait_for_window(u"f_cost"_s);
            user.same(user.text(u"cost_0"_s), u"25"_s, u"amount"_s);
            user.click(u"OKButton"_s);
            user.wait_until_closed(u"f_cost"_s);
            accept(user);
        });
        QCOMPARE(store.text(u"select group_concat(fg) from cost"_s), u"25,0"_s);
        in_stored_round(key_of_keyed_round(), [](hand& user) {
            user.same(user.text(u"text_7"_s), u"25"_s, u"costs"_s);
            discard(user);
        });
    }

    void the_menu_is_locked_while_the_window_is_open()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([&](hand& user) {
            user.check(store.frame.locked, u"the menu is locked"_s);
            user.click(u"Command1_2"_s);
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
        QCOMPARE(data_environment().rsStat_rounds.Source(), u"select * from stat_rounds"_s);
    }

    void the_list_of_rounds_is_closed_when_a_round_opens()
    {
        const round_store store;
        store.add_two_courses();
        store.add_round(key_of_keyed_round());
        a_round_list list;
        play([&] { list.show_modal(); },
             [&](hand& user) {
                 user.wait_for_window(u"f_games"_s);
                 in_stored_round_over(user, key_of_keyed_round());
                 user.wait_for_window(round_window());
                 user.wait_until_closed(u"f_games"_s);
                 discard(user);
             });
        QVERIFY(!list.is_loaded());
    }

    void a_round_without_its_games2_row_is_reported_and_does_not_open_data() { both_languages(); }
    void a_round_without_its_games2_row_is_reported_and_does_not_open()
    {
        QFETCH(bool, french);
        const round_store store(french);
        store.add_two_courses();
        store.add_partner(u"Gagnon"_s, u"Luc"_s, 5);
        store.add_round(key_of_keyed_round());
        store.store.write(u"delete from games2"_s);
        open_refused_round(key_of_keyed_round(), [](hand& user) {
            user.answer(
                {u"Error : games2 record not found"_s, QMessageBox::NoIcon, u"Verdane"_s, QMessageBox::Ok});
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
            user.click_tab(u"TabStrip2"_s, 2);
            with_round(user, [](f_new_round& window) {
                QCOMPARE(window.size(), QSize(1024, 668));
                QVERIFY(!scrolls(window));
            });
            user.click_tab(u"TabStrip2"_s, 1);
            discard(user);
        });
    }
};

QTEST_MAIN(test_round_closing)

#include "test_round_closing.moc"
