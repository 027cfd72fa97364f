#include <QTest>

#include "tests/reference/partner_windows.h"
#include "tests/support/window_look.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

const QString grid = u"pgrid"_s;

}  // namespace

class test_partner_removal : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Yes_removes_the_partner_and_nothing_else_data() { both_languages(); }
    void Yes_removes_the_partner_and_nothing_else()
    {
        QFETCH(bool, french);
        const partner_store store(french);
        store.add_three();
        store.store.write(u"insert into games2 (date, PARTNERS) values ('20240614093000', '2-1-')"_s);
        in_partners([&](hand& user) {
            user.click_cell(grid, 1, 2);
            user.click(u"Del"_s);
            user.answer(question_on_removal(u" Birch Bob"_s), QMessageBox::Yes);
            user.wait_for_window(partner_window());
            user.same(user.grid_rows(grid), 2, u"rows"_s);
            user.same(user.cursor(grid), u"1,2"_s, u"the cursor is on the next partner"_s);
            accept_partners(user);
        });
        QCOMPARE(store.rows(), u"Cedar,Cleo,3 | Alder,Ann,1"_s);
        QCOMPARE(store.store.text(u"select PARTNERS from games2"_s), u"2-1-"_s);
    }

    void a_removal_is_pending_until_the_next_new_row_or_the_closing_data()
    {
        QTest::addColumn<bool>("adding");
        QTest::newRow("a new row") << true;
        QTest::newRow("the closing of the window") << false;
    }
    void a_removal_is_pending_until_the_next_new_row_or_the_closing()
    {
        QFETCH(bool, adding);
        const partner_store store;
        store.add_three();
        in_partners([&](hand& user) {
            user.click(u"Del"_s);
            user.answer(question_on_removal(u" Alder Ann"_s), QMessageBox::Yes);
            user.wait_for_window(partner_window());
            user.same(store.rows(), u"Cedar,Cleo,3 | Alder,Ann,1 | Birch,Bob,2"_s, u"still stored"_s);
            if (adding) {
                user.click(u"add"_s);
                user.same(store.store.number(u"select count(*) from partners where code = 1"_s), 0,
                          u"removed with the new row"_s);
            }
            user.close_window(partner_window());
        });
        QCOMPARE(store.rows().left(26), u"Cedar,Cleo,3 | Birch,Bob,2"_s);
    }

    void any_other_answer_removes_nothing_data()
    {
        QTest::addColumn<bool>("escape");
        QTest::newRow("No") << false;
        QTest::newRow("Escape") << true;
    }
    void any_other_answer_removes_nothing()
    {
        QFETCH(bool, escape);
        const partner_store store;
        store.add_three();
        in_partners([&](hand& user) {
            user.click(u"Del"_s);
            if (escape) {
                user.wait_for_window(u"message_box"_s);
                user.key(Qt::Key_Escape);
            } else {
                user.answer(question_on_removal(u" Alder Ann"_s), QMessageBox::No);
            }
            user.wait_for_window(partner_window());
            user.same(user.grid_rows(grid), 3, u"rows"_s);
            accept_partners(user);
        });
        QCOMPARE(store.rows(), u"Cedar,Cleo,3 | Alder,Ann,1 | Birch,Bob,2"_s);
    }

    void all_partners_can_be_removed_one_after_the_other()
    {
        const partner_store store;
        store.add_three();
        in_partners([](hand& user) {
            user.click_cell(grid, 2, 0);
            for (const auto& name : {u" Cedar Cleo"_s, u" Birch Bob"_s, u" Alder Ann"_s}) {
                user.click(u"Del"_s);
                user.answer(question_on_removal(name), QMessageBox::Yes);
                user.wait_for_window(partner_window());
            }
            user.same(user.grid_rows(grid), 0, u"rows"_s);
            user.click(u"Del"_s);
            user.check(!user.is_open(u"message_box"_s), u"no question is shown"_s);
            accept_partners(user);
        });
        QCOMPARE(store.rows(), QString());
    }

    void the_title_shows_the_names_that_are_not_Null_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("surname");
        QTest::addColumn<QString>("title");
        QTest::newRow("nothing") << u"null"_s << u"null"_s << QString();
        QTest::newRow("a name") << u"'Birch'"_s << u"null"_s << u" Birch"_s;
        QTest::newRow("a first name") << u"null"_s << u"'Bob'"_s << u" Bob"_s;
        QTest::newRow("empty names") << u"''"_s << u"''"_s << u"  "_s;
    }
    void the_title_shows_the_names_that_are_not_Null()
    {
        QFETCH(QString, name);
        QFETCH(QString, surname);
        QFETCH(QString, title);
        const partner_store store;
        store.store.write(u"insert into partners (NAME, SURNAME) values (%1, %2)"_s.arg(name, surname));
        in_partners([&](hand& user) {
            user.click(u"Del"_s);
            user.answer(question_on_removal(title), QMessageBox::Yes);
            user.wait_for_window(partner_window());
            user.close_window(partner_window());
        });
        QCOMPARE(store.rows(), QString());
    }

    void a_new_partner_can_be_removed_at_once()
    {
        const partner_store store;
        store.add_three();
        in_partners([](hand& user) {
            user.click(u"add"_s);
            user.click(u"Del"_s);
            user.answer(question_on_removal({}), QMessageBox::Yes);
            user.wait_for_window(partner_window());
            user.same(user.cursor(grid), u"2,0"_s, u"cursor"_s);
            accept_partners(user);
        });
        QCOMPARE(store.rows(), u"Cedar,Cleo,3 | Alder,Ann,1 | Birch,Bob,2"_s);
    }
};

QTEST_MAIN(test_partner_removal)
#include "test_partner_removal.moc"
