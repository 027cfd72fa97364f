#include <QListWidget>
#include <QTest>

#include "management/round_removal.h"
#include "store/DataEnvironment1.h"
#include "tests/management/removal_windows.h"
#include "tests/round/round_windows.h"
#include "tests/support/hand_widgets.h"
#include "tests/support/window_look.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

QString lines(hand& user)
{
    QStringList days;
    for (const QString& line : user.entries(u"List1"_s))
        days << line.left(10);
    return days.join(u' ');
}

/// The number of entries, also while a message box is open above the list.
int entries_in_list(hand& user)
{
    int count = 0;
    user.look([&] { count = find_control<QListWidget>(*open_form(u"f_games"), u"List1"_s).count(); });
    return count;
}

}  // namespace

class test_round_removal : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Yes_removes_the_round_from_the_four_tables_data() { both_languages(); }
    void Yes_removes_the_round_from_the_four_tables()
    {
        QFETCH(bool, french);
        const round_store store(french);
        add_rounds(store.store, 3);
        in_list([&](hand& user) {
            user.click_row(u"List1"_s, 1);
            user.click(u"Command1_3"_s);
            user.answer(question_on_removal(), QMessageBox::Yes);
            user.wait_for_window(u"message_box"_s);
            user.same(entries_in_list(user), 2, u"entries while the notice is shown"_s);
            user.same(days_stored(store.store), u"1,3 | 1,3 | 1,3 | 1,3"_s,
                      u"days stored while the notice is shown"_s);
            user.answer(notice_of_removal());
            user.wait_for_window(list_window());
            user.same(lines(user), u"2003-01-01 2003-01-03"_s, u"lines"_s);
            user.same(user.selected(u"List1"_s), 0, u"selected"_s);
            user.same(data_environment().rsgames.RecordCount(), 3, u"RecordCount of the open rounds"_s);
            leave_list(user);
        });
        QCOMPARE(days_stored(store.store), u"1,3 | 1,3 | 1,3 | 1,3"_s);
        QCOMPARE(store.number(u"select count(*) from Stat_rounds"_s), 8);
        QCOMPARE(open_recordsets(), QStringList());
    }

    void the_first_and_the_last_round_can_be_removed_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("kept");
        QTest::newRow("the first") << 0 << u"2,3"_s;
        QTest::newRow("the last") << 2 << u"1,2"_s;
    }
    void the_first_and_the_last_round_can_be_removed()
    {
        QFETCH(int, row);
        QFETCH(QString, kept);
        const round_store store;
        add_rounds(store.store, 3);
        in_list([&](hand& user) {
            user.click_row(u"List1"_s, row);
            remove_round_in_list(user);
            user.same(user.selected(u"List1"_s), 0, u"selected"_s);
            leave_list(user);
        });
        QCOMPARE(days_stored(store.store), QStringList(4, kept).join(u" | "));
    }

    void No_changes_neither_tables_nor_list_data() { both_languages(); }
    void No_changes_neither_tables_nor_list()
    {
        QFETCH(bool, french);
        const round_store store(french);
        add_rounds(store.store, 2);
        in_list([](hand& user) {
            user.click_row(u"List1"_s, 1);
            user.click(u"Command1_3"_s);
            user.answer(question_on_removal(), QMessageBox::No);
            user.wait_for_window(list_window());
            user.same(lines(user), u"2003-01-01 2003-01-02"_s, u"lines"_s);
            user.same(user.selected(u"List1"_s), 1, u"selected"_s);
            leave_list(user);
        });
        QCOMPARE(days_stored(store.store), u"1,2 | 1,2 | 1,2 | 1,2"_s);
    }

    void Escape_at_the_question_removes_nothing()
    {
        const round_store store;
        add_rounds(store.store, 1);
        in_list([](hand& user) {
            user.click(u"Command1_3"_s);
            user.wait_for_window(u"message_box"_s);
            user.key(Qt::Key_Escape);
            user.wait_for_window(list_window());
            leave_list(user);
        });
        QCOMPARE(days_stored(store.store), u"1 | 1 | 1 | 1"_s);
    }

    void in_an_empty_list_the_buttons_do_nothing()
    {
        const round_store store;
        add_rounds(store.store, 1);
        in_list([](hand& user) {
            remove_round_in_list(user);
            user.same(lines(user), QString(), u"lines"_s);
            user.same(user.selected(u"List1"_s), -1, u"selected"_s);
            for (const auto& button : {u"Command1_3"_s, u"Command1_0"_s}) {
                user.click(button);
                user.check(!user.is_open(u"message_box"_s) && user.is_open(list_window()),
                           u"no message box, and the list is open"_s);
            }
            leave_list(user);
        });
        QCOMPARE(days_stored(store.store), u" |  |  | "_s);
    }

    void a_round_without_rows_in_a_table_is_removed_data()
    {
        QTest::addColumn<QString>("table");
        QTest::newRow("no shots") << u"Stat_rounds"_s;
        QTest::newRow("no costs") << u"cost"_s;
        QTest::newRow("no situation") << u"games2"_s;
    }
    void a_round_without_rows_in_a_table_is_removed()
    {
        QFETCH(QString, table);
        for (const bool empty : {false, true}) {
            const round_store store;
            add_rounds(store.store, 2);
            store.store.write(u"delete from %1 where date = '%2'%3"_s.arg(table, key_of_day(1),
                                                                          empty ? u" or 1"_s : QString()));
            in_list([](hand& user) {
                remove_round_in_list(user);
                leave_list(user);
            });
            const QString kept = store.text(u"select group_concat(distinct date) from games"_s);
            QCOMPARE(kept, key_of_day(2));
            QCOMPARE(store.number(u"select count(*) from %1"_s.arg(table)),
                     empty ? 0 : (table == u"Stat_rounds" ? 4 : 1));
        }
    }

    void a_round_can_be_opened_and_added_after_a_removal_data()
    {
        QTest::addColumn<QString>("button");
        QTest::newRow("opened") << u"Command1_0"_s;
        QTest::newRow("added") << u"Command1_1"_s;
    }
    void a_round_can_be_opened_and_added_after_a_removal()
    {
        QFETCH(QString, button);
        const round_store store;
        add_rounds(store.store, 2);
        // The shots have no club, which would keep the round window open.
        store.store.write(u"delete from Stat_rounds where date = '%1'"_s.arg(key_of_day(2)));
        in_list([&](hand& user) {
            remove_round_in_list(user);
            user.click(button);
            if (button == u"Command1_0"_s) {
                user.wait_for_window(round_window());
                user.same(user.text(u"text_2"_s), u"2003-01-02"_s, u"date"_s);
                user.same(user.text(u"text_7"_s), u"2"_s, u"costs"_s);
            } else {
                tee_off(user, u"9"_s, u"30"_s, u"00"_s);
                user.wait_for_window(round_window());
            }
            accept(user);
        });
        QCOMPARE(store.text(u"select min(date) from games"_s), key_of_day(2));
        QCOMPARE(open_recordsets(), QStringList());
    }

    void the_recordsets_keep_the_statements_of_the_removal_as_sources()
    {
        const round_store store;
        add_rounds(store.store, 1);
        remove_round(key_of_day(1));
        QCOMPARE(data_environment().rsStat_rounds.Source(),
                 u"select * from Stat_rounds order by date,hole"_s);
        QCOMPARE(data_environment().rscost.Source(), u"select * from cost order by date"_s);
        QCOMPARE(open_recordsets(), QStringList());
    }
};

QTEST_MAIN(test_round_removal)
#include "test_round_removal.moc"
