#include <QCalendarWidget>
#include <QTableView>
#include <QTest>

#include "records/Main_module.h"
#include "round/f_new_round.h"
#include "round/tee_off.h"
#include "tests/round/round_windows.h"
#include "tests/support/engine_of_tests.h"
#include "tests/support/languages.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

QCalendarWidget& calendar_of_dialog()
{
    return *open_form(u"f_get_date")->findChild<QCalendarWidget*>(u"round_date"_s);
}

const QString dialog = u"f_get_date"_s;

QDate chosen_date(hand& user)
{
    QDate date;
    user.look([&] { date = calendar_of_dialog().selectedDate(); });
    return date;
}

/// Double-clicks the calendar's cell of a date of the month that is shown.
void double_click_date(hand& user, const QDate& date)
{
    user.look([date] {
        QCalendarWidget& calendar = calendar_of_dialog();
        calendar.setSelectedDate(date);
        auto* days = calendar.findChild<QTableView*>(u"qt_calendar_calendarview"_s);
        const QPoint where = days->visualRect(days->currentIndex()).center();
        calendar.setSelectedDate(date.addDays(1));
        QTest::mouseClick(days->viewport(), Qt::LeftButton, Qt::NoModifier, where);
        QTest::mouseDClick(days->viewport(), Qt::LeftButton, Qt::NoModifier, where);
    });
}

int rows_in(const round_store& store)
{
    return store.number(u"select (select count(*) from games) + (select count(*) from games2) + "
                        u"(select count(*) from cost)"_s);
}

}  // namespace

class test_tee_off : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_dialog_opens_by_itself_with_today_and_noon_data() { both_languages(); }
    void the_dialog_opens_by_itself_with_today_and_noon()
    {
        QFETCH(bool, french);
        const round_store store(french);
        store.add_two_courses();
        in_new_round([&](hand& user) {
            user.wait_for_window(dialog);
            user.same(user.title(dialog),
                      french ? u"Date et heure du coup de départ"_s : u"Tee Off Date and Time"_s, u"title"_s);
            user.same(user.text(u"Command1"_s), french ? u"Annuler"_s : u"Cancel"_s, u"button"_s);
            user.same(user.text(u"OKbut"_s), u"OK"_s, u"button"_s);
            user.same(user.text(u"Text1"_s), u"12"_s, u"hours"_s);
            user.same(user.text(u"Text2"_s), u"00"_s, u"minutes"_s);
            user.same(user.text(u"Text3"_s), u"00"_s, u"seconds"_s);
            user.same(user.focus(), u"OKbut"_s, u"focus"_s);
            user.check(chosen_date(user) == QDate::currentDate(), u"today is chosen"_s);
            user.click(u"Command1"_s);
        });
    }

    void the_boxes_are_padded_to_two_characters_data()
    {
        QTest::addColumn<QString>("hours");
        QTest::addColumn<QString>("minutes");
        QTest::addColumn<QString>("seconds");
        QTest::addColumn<QString>("time");
        QTest::addColumn<QString>("key");
        QTest::newRow("an empty box is two zeros") << "9"
                                                   << "5"
                                                   << ""
                                                   << "09:05:00"
                                                   << "20240614090500";
        QTest::newRow("two digits are kept") << "23"
                                             << "59"
                                             << "58"
                                             << "23:59:58"
                                             << "20240614235958";
        QTest::newRow("blanks are trimmed") << " 7"
                                            << "1 "
                                            << " 3 "
                                            << "07:01:03"
                                            << "20240614070103";
        // A server refuses a text that is longer than its column.
        if (engine_of_tests() != test_engine::mariadb)
            QTest::newRow("three digits make a longer key") << "123"
                                                            << "00"
                                                            << "00"
                                                            << "123:00:00"
                                                            << "202406141230000";
        QTest::newRow("letters are accepted") << "ab"
                                              << "99"
                                              << "x"
                                              << "ab:99:0x"
                                              << "20240614ab990x";
    }

    void the_boxes_are_padded_to_two_characters()
    {
        QFETCH(QString, hours);
        QFETCH(QString, minutes);
        QFETCH(QString, seconds);
        QFETCH(QString, time);
        QFETCH(QString, key);
        const round_store store;
        store.add_two_courses();
        in_new_round([&](hand& user) {
            tee_off(user, hours, minutes, seconds);
            user.same(user.text(u"text_3"_s), time, u"time"_s);
            user.same(user.text(u"text_2"_s),
                      QLocale::system().toString(QDate(2024, 6, 14), QLocale::ShortFormat), u"date"_s);
            user.check(!user.enabled(u"b_getdat"_s), u"no other date"_s);
            with_round(user, [&](f_new_round& window) {
                QCOMPARE(window.date_value(), key);
                QVERIFY(!window.get_date_canceled());
            });
            accept(user);
        });
        for (const QString& table : {u"games"_s, u"games2"_s, u"cost"_s})
            QCOMPARE(store.at(table, 0), key);
    }

    void a_date_and_time_in_use_are_refused_and_the_next_second_is_accepted_data() { both_languages(); }
    void a_date_and_time_in_use_are_refused_and_the_next_second_is_accepted()
    {
        QFETCH(bool, french);
        const round_store store(french);
        store.add_two_courses();
        in_keyed_round([](hand& user) { accept(user); });
        in_new_round([](hand& user) {
            fill_tee_off(user, u"9"_s, u"30"_s, u"0"_s);
            user.answer(refusal_of_moment());
            user.wait_for_window(dialog);
            user.same(user.text(u"Text1"_s), u"9"_s, u"hours"_s);
            tee_off(user, u"9"_s, u"30"_s, u"1"_s);
            accept(user);
        });
        QCOMPARE(store.text(u"select group_concat(date) from games"_s), u"20240614093000,20240614093001"_s);
    }

    void No_at_the_question_keeps_the_dialog_as_it_was()
    {
        const round_store store;
        store.add_two_courses();
        in_new_round([](hand& user) {
            fill_tee_off(user, u"8"_s, u"15"_s, QString());
            user.answer(question_on_tee_off(), QMessageBox::No);
            user.wait_for_window(dialog);
            user.same(user.text(u"Text1"_s), u"8"_s, u"hours"_s);
            user.same(user.text(u"Text3"_s), QString(), u"seconds"_s);
            user.check(chosen_date(user) == QDate(2024, 6, 14), u"the date is unchanged"_s);
            user.look([] {
                QCOMPARE(dynamic_cast<f_new_round&>(*open_form(u"f_new_round")).date_value(), QString());
            });
            user.click(u"Command1"_s);
        });
        QCOMPARE(rows_in(store), 0);
    }

    void closing_the_dialog_without_a_date_stores_nothing_data()
    {
        QTest::addColumn<int>("road");
        QTest::newRow("by Cancel") << 0;
        QTest::newRow("by Escape") << 1;
        QTest::newRow("by the title bar") << 2;
    }

    void closing_the_dialog_without_a_date_stores_nothing()
    {
        QFETCH(int, road);
        const round_store store;
        store.add_two_courses();
        in_new_round([&](hand& user) {
            user.wait_for_window(dialog);
            if (road == 0)
                user.click(u"Command1"_s);
            else if (road == 1)
                user.key(Qt::Key_Escape);
            else
                user.close_window(dialog);
            user.wait_until_closed(dialog);
            user.wait_until_closed(round_window());
        });
        QCOMPARE(rows_in(store), 0);
        QCOMPARE(plain(Main_module::round_key_count), 0);
        QVERIFY(!store.frame.locked);
        in_keyed_round([](hand& user) { accept(user); });
        QCOMPARE(rows_in(store), 3);
    }

    void a_double_click_on_a_date_selects_it_and_sets_the_focus_to_OK()
    {
        const round_store store;
        store.add_two_courses();
        in_new_round([](hand& user) {
            user.wait_for_window(dialog);
            user.click(u"Text1"_s);
            double_click_date(user, QDate(2024, 6, 20));
            user.same(user.focus(), u"OKbut"_s, u"focus"_s);
            user.check(chosen_date(user) == QDate(2024, 6, 20), u"the date is chosen"_s);
            user.wait_for_window(dialog);
            user.key(Qt::Key_Return);
            user.answer(question_on_tee_off(), QMessageBox::Yes);
            user.wait_for_window(round_window());
            with_round(user, [](f_new_round& window) { QCOMPARE(window.date_value(), u"20240620120000"_s); });
            discard(user);
        });
    }

    void the_key_is_added_to_the_list_at_the_first_save_only()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([](hand& user) {
            user.look([] { QCOMPARE(plain(Main_module::round_key_count), 0); });
            user.check(user.text(u"text_3"_s) == u"09:30:00", u"the time is shown"_s);
            discard(user);
        });
        QCOMPARE(plain(Main_module::round_key_count), 0);
        QCOMPARE(rows_in(store), 0);
    }
};

QTEST_MAIN(test_tee_off)

#include "test_tee_off.moc"
