#include <QTest>

#include "base/language.h"
#include "controls/boxes.h"
#include "controls/failure_guard.h"
#include "management/f_games.h"
#include "store/DataEnvironment1.h"
#include "tests/round/round_windows.h"
#include "tests/support/diary.h"
#include "tests/support/window_look.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

QString list_window()
{
    return in_language(u"f_games", u"f_games_en");
}

diary_course alpha()
{
    return flat_course(u"ALPHA-0"_s, 4, u"70"_s, u"113"_s);
}

diary_course beta()
{
    return flat_course(u"BETA-6"_s, 5, u"70"_s, u"113"_s);
}

/// Adds two courses and three rounds: on day 1 on Beta, on days 2 and 3 on Alpha. The score of each hole is
/// its par plus the day.
void fill(const round_store& store)
{
    const diary book(store.store);
    for (const diary_course& course : {alpha(), beta()})
        book.add(course);
    for (int day = 1; day <= 3; ++day) {
        const diary_course course = day == 1 ? beta() : alpha();
        diary_round round{key_of_day(day), course, holes_over(course.pars, day), day, {}};
        book.add(round);
        store.store.write(u"insert into cost (date, fg) values ('%1', %2)"_s.arg(round.key).arg(10 * day));
    }
}

/// Opens the list, runs the script, and waits until the list and the round window are closed.
void from_list(const std::function<void(hand&)>& script)
{
    play(
        [] {
            run_event([] {
                f_games window;
                window.show_modal();
            });
        },
        [&](hand& user) {
            user.wait_for_window(list_window());
            script(user);
            user.wait_until_closed(list_window());
        });
}

/// Checks that the list is closed and that the round window shows the round of that day.
void check_round(hand& user, int day)
{
    user.wait_for_window(round_window());
    user.check(!user.is_open(list_window()), u"the list is closed"_s);
    user.same(user.text(u"text_2"_s), u"2003-01-0%1"_s.arg(day), u"date"_s);
    user.same(user.text(u"text_3"_s), u"09:30:00"_s, u"time"_s);
    user.same(user.text(u"text_vrd_1"_s), QString::number((day == 1 ? 2 : 1) + day), u"approach shots"_s);
    user.same(user.text(u"text_7"_s), QString::number(10 * day), u"costs"_s);
    user.check(!user.enabled(u"b_getdat"_s), u"the date of a stored round is fixed"_s);
}

}  // namespace

class test_round_reopening : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_selected_round_opens_and_all_windows_are_closed_afterwards_data()
    {
        QTest::addColumn<bool>("french");
        QTest::addColumn<QString>("by");
        QTest::addColumn<int>("day");
        QTest::newRow("the button, on the round selected at first") << true << u"button"_s << 1;
        QTest::newRow("the button, on another") << false << u"button"_s << 3;
        QTest::newRow("a double click") << true << u"mouse"_s << 2;
        QTest::newRow("Enter on the line") << false << u"keyboard"_s << 2;
    }
    void the_selected_round_opens_and_all_windows_are_closed_afterwards()
    {
        QFETCH(bool, french);
        QFETCH(QString, by);
        QFETCH(int, day);
        const round_store store(french);
        fill(store);
        from_list([&](hand& user) {
            if (by == u"mouse") {
                user.double_click_row(u"List1"_s, day - 1);
            } else {
                user.click_row(u"List1"_s, day - 1);
                if (by == u"button")
                    user.click(u"Command1_0"_s);
                else
                    user.key(Qt::Key_Return);
            }
            check_round(user, day);
            discard(user);
        });
        QCOMPARE(open_recordsets(), QStringList());
        QVERIFY(!store.frame.locked);
        QVERIFY(active_form() == nullptr);
        QVERIFY(store.frame.activations > 0);
        QCOMPARE(data_environment().rsStat_rounds.Source(), u"select * from stat_rounds"_s);
    }

    void the_shots_of_the_first_hole_are_opened_with_the_round()
    {
        const round_store store;
        fill(store);
        QString source;
        from_list([&](hand& user) {
            user.click(u"Command1_0"_s);
            user.wait_for_window(round_window());
            user.look([&] { source = data_environment().rsStat_rounds.Source(); });
            discard(user);
        });
        QCOMPARE(source,
                 u"Select * from Stat_rounds where ( date= '20030101093000' ) and hole = 1 order by shot"_s);
    }

    void a_round_without_costs_gets_twelve_zeros()
    {
        const round_store store;
        fill(store);
        store.store.write(u"delete from cost where date = '%1'"_s.arg(key_of_day(2)));
        from_list([&](hand& user) {
            user.click_row(u"List1"_s, 1);
            user.click(u"Command1_0"_s);
            user.wait_for_window(round_window());
            user.same(user.text(u"text_7"_s), u"0"_s, u"costs"_s);
            accept(user);
        });
        const auto rows = store.store.rows(u"select * from cost where date = '%1'"_s.arg(key_of_day(2)));
        QCOMPARE(rows.size(), std::size_t(1));
        for (std::size_t amount = 1; amount <= 12; ++amount)
            QCOMPARE(rows[0][amount].toInt(), 0);
        QCOMPARE(store.number(u"select count(*) from cost"_s), 3);
        QCOMPARE(open_recordsets(), QStringList());
    }

    void a_round_opens_with_an_empty_cost_table_and_gets_a_row()
    {
        const round_store store;
        fill(store);
        store.store.write(u"delete from cost"_s);
        from_list([&](hand& user) {
            user.click(u"Command1_0"_s);
            user.wait_for_window(round_window());
            accept(user);
        });
        QCOMPARE(store.of_round(u"cost"_s, u"date"_s), key_of_day(1));
        QCOMPARE(store.of_round(u"cost"_s, u"au"_s), u"0"_s);
    }

    void a_round_saved_from_the_list_is_listed_as_saved_when_the_list_is_opened_again()
    {
        const round_store store;
        fill(store);
        store.store.write(
            u"update games set long_18 = null, approach_18 = 0, putt_18 = 0 where date = '%1'"_s.arg(
                key_of_day(1)));
        from_list([&](hand& user) {
            user.check(user.text(u"List1"_s).endsWith(u"**"), u"marked"_s);
            user.click(u"Command1_0"_s);
            user.wait_for_window(round_window());
            user.click_tab(u"TabStrip1"_s, 18);
            user.fill(u"text_vrd_0"_s, u"4"_s);
            accept(user);
        });
        from_list([&](hand& user) {
            user.check(!user.text(u"List1"_s).endsWith(u"**"), user.text(u"List1"_s));
            user.click(u"Command1_2"_s);
        });
        QCOMPARE(open_recordsets(), QStringList());
    }

    void a_round_without_its_games2_row_is_reported_and_everything_is_closed_data() { both_languages(); }
    void a_round_without_its_games2_row_is_reported_and_everything_is_closed()
    {
        QFETCH(bool, french);
        const round_store store(french);
        fill(store);
        store.store.write(u"delete from games2 where date = '%1'"_s.arg(key_of_day(1)));
        from_list([&](hand& user) {
            user.click(u"Command1_0"_s);
            user.answer({u"Error : games2 record not found"_s, QMessageBox::NoIcon, default_title(),
                         QMessageBox::Ok});
        });
        QCOMPARE(open_recordsets(), QStringList());
        QVERIFY(!store.frame.locked);
    }

    void adding_starts_a_new_round_with_its_tee_off()
    {
        const round_store store;
        fill(store);
        from_list([&](hand& user) {
            user.click(u"Command1_1"_s);
            tee_off(user, u"9"_s, u"30"_s, u"00"_s);
            user.wait_for_window(round_window());
            user.check(!user.is_open(list_window()), u"the list is closed"_s);
            accept(user);
        });
        QCOMPARE(store.number(u"select count(*) from games"_s), 4);
        QCOMPARE(store.text(u"select max(date) from games2"_s), key_of_keyed_round());
        QCOMPARE(store.text(u"select CODEF from games order by date desc limit 1"_s), u"ALPHA-0"_s);
        QCOMPARE(open_recordsets(), QStringList());
        QVERIFY(!store.frame.locked);
    }

    void adding_and_cancelling_the_tee_off_leaves_no_row()
    {
        const round_store store;
        fill(store);
        from_list([&](hand& user) {
            user.click(u"Command1_1"_s);
            user.wait_for_window(u"f_get_date"_s);
            user.close_window(u"f_get_date"_s);
            user.wait_until_closed(round_window());
        });
        for (const QString& table : {u"games"_s, u"games2"_s, u"cost"_s})
            QCOMPARE(store.number(u"select count(*) from " + table), 3);
        QCOMPARE(open_recordsets(), QStringList());
        QVERIFY(active_form() == nullptr);
    }
};

QTEST_MAIN(test_round_reopening)
#include "test_round_reopening.moc"
