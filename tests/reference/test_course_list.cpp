#include <QTest>

#include "base/language.h"
#include "controls/failure_guard.h"
#include "controls/Form.h"
#include "records/course_keys.h"
#include "reference/f_c_list.h"
#include "store/DataEnvironment1.h"
#include "tests/reference/course_windows.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

class test_course_list : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_line_is_the_name_and_the_tee_in_table_order_data() { both_languages(); }
    void a_line_is_the_name_and_the_tee_in_table_order()
    {
        QFETCH(bool, french);
        const course_store store(french);
        store.add({u"ZULU-6 "_s, u" Zulu  "_s, u" Zulu-6 "_s});
        store.add({});
        store.add({u"ODD-8"_s, u"Odd"_s, u"Odd-8"_s});
        in_course_list_until_ok([](hand& user) {
            user.same(user.entries(u"List1"_s).join(u'|'),
                      in_language(u"Zulu, Vert|Alpha, BLANC|Odd, ", u"Zulu, Green|Alpha, White|Odd, "),
                      u"lines"_s);
            user.same(user.selected(u"List1"_s), 0, u"selected line"_s);
        });
        QCOMPARE(course_keys[0].name_tee, u"Zulu-6"_s);
        QCOMPARE(course_keys[0].code, u"ZULU-6"_s);
        QCOMPARE(course_keys[2].code, u"ODD-8"_s);
        QVERIFY(course_keys[3].code.isEmpty());
    }

    void an_empty_store_gives_an_empty_list_that_opens_and_deletes_nothing()
    {
        const course_store store;
        in_course_list_until_ok([](hand& user) {
            user.same(user.entries(u"List1"_s).join(u'|'), {}, u"lines"_s);
            user.click(u"Command1_0"_s);
            user.click(u"Command1_3"_s);
            user.check(user.is_open(list_window()), u"the list is still open"_s);
            user.check(!user.is_open(editor_window()), u"nothing opens"_s);
        });
    }

    void open_shows_the_selected_course_data()
    {
        QTest::addColumn<int>("line");
        QTest::addColumn<QString>("name");
        QTest::newRow("first") << 0 << u"Alpha"_s;
        QTest::newRow("second") << 1 << u"Beta"_s;
        QTest::newRow("last") << 2 << u"Gamma"_s;
    }
    void open_shows_the_selected_course()
    {
        QFETCH(int, line);
        QFETCH(QString, name);
        const course_store store;
        add_three_courses(store);
        in_stored_course(line, [&](hand& user) {
            user.same(user.text(u"text_1"_s), name, u"name"_s);
            user.same(user.selected(u"departure"_s), line, u"tee"_s);
            discard(user);
        });
    }

    void a_double_click_opens_a_course()
    {
        const course_store store;
        add_three_courses(store);
        in_course_list_until_ok([](hand& user) {
            user.double_click_row(u"List1"_s, 2);
            user.wait_for_window(editor_window());
            user.same(user.text(u"text_1"_s), u"Gamma"_s, u"name"_s);
            discard(user);
        });
    }

    void enter_on_a_line_opens_the_course_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("Return") << int(Qt::Key_Return);
        QTest::newRow("Enter of the keypad") << int(Qt::Key_Enter);
    }
    void enter_on_a_line_opens_the_course()
    {
        QFETCH(int, key);
        const course_store store;
        add_three_courses(store);
        in_course_list_until_ok([&](hand& user) {
            user.click_row(u"List1"_s, 1);
            user.key(key);
            user.wait_for_window(editor_window());
            user.same(user.text(u"text_1"_s), u"Beta"_s, u"name"_s);
            discard(user);
        });
    }

    void an_added_course_has_no_line_until_the_list_is_opened_again()
    {
        const course_store store;
        in_new_course([](hand& user) {
            fill_required(user, u"Delta"_s);
            user.click(u"smdsave"_s);
            user.answer(notice_of_save());
            user.wait_for_window(list_window());
            user.same(user.entries(u"List1"_s).join(u'|'), {}, u"lines"_s);
            // No line is selected, although there is a row: nothing is opened or removed.
            user.click(u"Command1_0"_s);
            user.click(u"Command1_3"_s);
            user.check(user.is_open(list_window()), u"the list is still open"_s);
        });
        in_course_list_until_ok([](hand& user) {
            user.same(user.entries(u"List1"_s).join(u'|'), u"Delta, BLANC"_s, u"lines"_s);
        });
        QCOMPARE(store.number(u"select count(*) from field_info"_s), 1);
    }

    void after_a_course_was_added_each_older_line_opens_its_own_course()
    {
        const course_store store;
        add_three_courses(store);
        in_new_course([](hand& user) {
            fill_required(user, u"Delta"_s);
            user.click(u"smdsave"_s);
            user.answer(notice_of_save());
            user.wait_for_window(list_window());
            user.click_row(u"List1"_s, 1);
            user.click(u"Command1_0"_s);
            user.wait_for_window(editor_window());
            user.same(user.text(u"text_1"_s), u"Beta"_s, u"name"_s);
            discard(user);
        });
    }

    void fifty_one_courses_are_listed()
    {
        const course_store store;
        for (int i = 0; i < most_courses; ++i)
            store.add({u"C%1-0"_s.arg(i), u"C%1"_s.arg(i), u"C%1-0"_s.arg(i)});
        in_course_list_until_ok([](hand& user) {
            user.same(static_cast<int>(user.entries(u"List1"_s).size()), most_courses, u"lines"_s);
        });
        QCOMPARE(course_keys[most_courses - 1].code, u"C50-0"_s);
    }

    void the_menu_is_locked_while_the_list_is_open_data()
    {
        QTest::addColumn<bool>("by_title_bar");
        QTest::newRow("OK") << false;
        QTest::newRow("title bar") << true;
    }
    void the_menu_is_locked_while_the_list_is_open()
    {
        QFETCH(bool, by_title_bar);
        const course_store store;
        add_three_courses(store);
        in_course_list([&](hand& user) {
            user.check(store.frame.locked, u"the menu is locked"_s);
            if (by_title_bar)
                user.close_window(list_window());
            else
                user.click(u"Command1_2"_s);
            user.wait_until_closed(list_window());
        });
        QVERIFY(!store.frame.locked);
        QCOMPARE(store.frame.activations, 1);
        QVERIFY(!data_environment().rsvrd_fields.is_open());
        QVERIFY(!data_environment().rsfield_info.is_open());
    }

    void the_list_is_placed_near_the_top_in_the_middle_and_is_the_current_form()
    {
        course_store store;
        in_course_list_until_ok([&](hand& user) {
            user.look([&] {
                const Form* list = open_form(u"f_c_list");
                const QRect frame = store.frame.frame_widget()->geometry();
                QCOMPARE(current_form.data(), list);
                QCOMPARE(list->pos(), frame.topLeft() + QPoint((frame.width() - list->width()) / 2, 2));
            });
        });
    }

    void the_close_command_closes_the_list()
    {
        const course_store store;
        in_course_list([](hand& user) {
            user.look([] { run_event([] { current_form->closeForm(); }); });
            user.wait_until_closed(list_window());
        });
        QVERIFY(!store.frame.locked);
    }
};

QTEST_MAIN(test_course_list)
#include "test_course_list.moc"
