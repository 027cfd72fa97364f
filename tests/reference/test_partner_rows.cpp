#include <QTest>

#include "controls/Form.h"
#include "scoring/Verdane_tools.h"
#include "store/DataEnvironment1.h"
#include "tests/reference/partner_windows.h"
#include "tests/support/refused_change.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

const QString grid = u"pgrid"_s;

int code_of(QString name, QString surname)
{
    return plain(Verdane_tools::name_checksum(name, surname));
}

/// Closes the window although a name is missing.
void leave_by_title_bar(hand& user)
{
    user.close_window(partner_window());
}

}  // namespace

class test_partner_rows : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_new_partner_is_stored_at_once_with_a_provisional_code()
    {
        const partner_store store;
        store.add_three();
        for (int time = 0; time < 20; ++time) {
            in_partners([](hand& user) {
                const int rows = user.grid_rows(grid);
                user.click_cell(grid, 0, 3);
                user.click(u"add"_s);
                user.same(user.grid_rows(grid), rows + 1, u"rows"_s);
                user.same(user.cursor(grid), u"%1,0"_s.arg(rows), u"cursor on the first column"_s);
                user.same(user.focus(), grid, u"focus"_s);
                leave_by_title_bar(user);
            });
        }
        QCOMPARE(store.store.number(u"select count(*) from partners"_s), 23);
        QCOMPARE(store.store.number(u"select count(*) from partners where code < 0 or code > 9900"_s), 0);
        QVERIFY(store.store.number(u"select count(distinct code) from partners"_s) > 5);
    }

    void a_new_partner_is_in_the_store_before_the_window_closes()
    {
        const partner_store store;
        in_partners([&](hand& user) {
            user.click(u"add"_s);
            user.same(store.store.number(u"select count(*) from partners"_s), 1, u"stored"_s);
            leave_by_title_bar(user);
        });
    }

    void a_new_partner_without_a_name_keeps_the_window_open_data()
    {
        QTest::addColumn<bool>("french");
        QTest::addColumn<QString>("button");
        for (const bool french : {true, false}) {
            for (const auto& button : {u"cmdSave"_s, u"cmdAn"_s})
                QTest::addRow("%s, %s", french ? "French" : "English", qPrintable(button))
                    << french << button;
        }
    }
    void a_new_partner_without_a_name_keeps_the_window_open()
    {
        QFETCH(bool, french);
        QFETCH(QString, button);
        const partner_store store(french);
        store.add_three();
        in_partners([&](hand& user) {
            user.click(u"add"_s);
            const QString code = user.cell(grid, 3, 6);
            for (int time = 0; time < 2; ++time) {
                user.click(button);
                user.answer(refusal_of_missing_name());
                user.wait_for_window(partner_window());
                user.same(user.cursor(grid), u"3,0"_s, u"the cursor is where a name is missing"_s);
                user.same(user.focus(), grid, u"focus"_s);
            }
            user.same(user.cell(grid, 3, 6), code, u"provisional code"_s);
            user.check(store.frame.locked, u"the menu is still locked"_s);
            type_into(user, 3, 0, u"Doe"_s);
            user.type(u"Jane"_s);
            user.click(button);
        });
        QCOMPARE(store.rows().section(u" | "_s, 3), u"Doe,Jane,%1"_s.arg(code_of(u"Doe"_s, u"Jane"_s)));
    }

    void Escape_discards_the_cell_first_and_then_reports_a_missing_name()
    {
        const partner_store store;
        store.add_three();
        in_partners([&](hand& user) {
            user.click(u"add"_s);
            user.type(u"Doe"_s);
            user.key(Qt::Key_Escape);
            user.check(!user.is_open(u"message_box"_s), u"no message box is open"_s);
            user.same(user.cell(grid, 3, 0), QString(), u"name"_s);
            user.key(Qt::Key_Escape);
            user.answer(refusal_of_missing_name());
            user.wait_for_window(partner_window());
            leave_by_title_bar(user);
        });
    }

    void a_Null_empty_or_blank_name_is_missing_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("surname");
        QTest::addColumn<QString>("cursor");
        QTest::newRow("no name") << u"null"_s << u"'Bob'"_s << u"0,0"_s;
        QTest::newRow("no first name") << u"'Birch'"_s << u"null"_s << u"0,1"_s;
        QTest::newRow("an empty name") << u"''"_s << u"'Bob'"_s << u"0,0"_s;
        QTest::newRow("a first name of blanks") << u"'Birch'"_s << u"'   '"_s << u"0,1"_s;
        QTest::newRow("neither") << u"null"_s << u"null"_s << u"0,0"_s;
    }
    void a_Null_empty_or_blank_name_is_missing()
    {
        QFETCH(QString, name);
        QFETCH(QString, surname);
        QFETCH(QString, cursor);
        const partner_store store;
        store.store.write(
            u"insert into partners (NAME, SURNAME, code) values (%1, %2, 5)"_s.arg(name, surname));
        in_partners([&](hand& user) {
            accept_partners(user);
            user.answer(refusal_of_missing_name());
            user.wait_for_window(partner_window());
            user.same(user.cursor(grid), cursor, u"cursor"_s);
            leave_by_title_bar(user);
        });
        QCOMPARE(store.store.number(u"select code from partners"_s), 5);
    }

    void only_the_first_missing_name_is_reported_and_all_rows_are_stored()
    {
        const partner_store store;
        store.add_three();
        in_partners([&](hand& user) {
            type_into(user, 0, 2, u"1 Oak Road"_s);
            user.click_cell(grid, 1, 1);
            user.key(Qt::Key_Backspace);
            user.click_cell(grid, 2, 0);
            user.key(Qt::Key_Backspace);
            accept_partners(user);
            user.answer(refusal_of_missing_name());
            user.wait_for_window(partner_window());
            user.same(user.cursor(grid), u"1,1"_s, u"cursor"_s);
            user.same(store.rows(),
                      u",Cleo,%1 | Alder,Ann,%2 | Birch,,%3"_s.arg(code_of({}, u"Cleo"_s))
                          .arg(code_of(u"Alder"_s, u"Ann"_s))
                          .arg(code_of(u"Birch"_s, {})),
                      u"stored"_s);
            leave_by_title_bar(user);
        });
        QCOMPARE(store.store.text(u"select AD1 from partners where NAME = 'Alder'"_s), u"1 Oak Road"_s);
    }

    void the_code_is_computed_from_the_names_at_every_row_commit()
    {
        const partner_store store;
        store.add_three();
        in_partners([](hand& user) {
            type_into(user, 0, 0, u"Ash"_s);
            user.same(user.cell(grid, 0, 6), u"1"_s, u"code before the row is left"_s);
            user.key(Qt::Key_Down);
            user.same(user.cell(grid, 0, 6), QString::number(code_of(u"Ash"_s, u"Ann"_s)),
                      u"code after the row was left"_s);
            type_into(user, 0, 0, u"alder"_s);
            user.click_cell(grid, 2, 4);
            user.same(user.cell(grid, 0, 6), QString::number(code_of(u"ALDER"_s, u"Ann"_s)),
                      u"code after the second change"_s);
            accept_partners(user);
        });
        QCOMPARE(store.rows(),
                 u"Cedar,Cleo,3 | alder,Ann,%1 | Birch,Bob,2"_s.arg(code_of(u"Alder"_s, u"Ann"_s)));
    }

    void any_edit_of_a_row_computes_its_code_again()
    {
        const partner_store store;
        store.add_three();
        in_partners([](hand& user) {
            type_into(user, 0, 3, u"Lyon"_s);
            type_into(user, 1, 6, u"77"_s);
            accept_partners(user);
        });
        QCOMPARE(store.rows(),
                 u"Cedar,Cleo,3 | Alder,Ann,%1 | Birch,Bob,%2"_s.arg(code_of(u"Alder"_s, u"Ann"_s))
                     .arg(code_of(u"Birch"_s, u"Bob"_s)));
    }

    void moving_through_rows_without_a_change_keeps_their_codes()
    {
        const partner_store store;
        store.add_three();
        in_partners([](hand& user) {
            for (int step = 0; step < 4; ++step)
                user.key(Qt::Key_Down);
            user.key(Qt::Key_F2);
            user.key(Qt::Key_Return);
            user.click_cell(grid, 0, 0);
            accept_partners(user);
        });
        QCOMPARE(store.rows(), u"Cedar,Cleo,3 | Alder,Ann,1 | Birch,Bob,2"_s);
    }

    void names_with_the_same_letters_share_a_code()
    {
        const partner_store store;
        store.add_three();
        in_partners([](hand& user) {
            type_into(user, 0, 0, u"Anna"_s);
            user.type(u"Noel"_s);
            type_into(user, 1, 0, u"NANA"_s);
            user.type(u"leon"_s);
            accept_partners(user);
        });
        QCOMPARE(
            store.store.number(u"select count(distinct code) from partners where AD1 is null and code > 3"_s),
            1);
        QCOMPARE(store.store.number(u"select count(*) from partners where code > 3"_s), 2);
    }

    void adding_commits_the_row_that_was_being_typed()
    {
        const partner_store store;
        store.add_three();
        in_partners([&](hand& user) {
            user.click_cell(grid, 1, 0);
            user.type(u"Beech"_s);
            user.click(u"add"_s);
            user.same(store.rows().section(u" | "_s, 2, 2),
                      u"Beech,Bob,%1"_s.arg(code_of(u"Beech"_s, u"Bob"_s)), u"stored with the new row"_s);
            user.same(user.cursor(grid), u"3,0"_s, u"cursor"_s);
            leave_by_title_bar(user);
        });
    }

    void Null_names_become_empty_texts_at_the_row_commit()
    {
        const partner_store store;
        in_partners([](hand& user) {
            user.click(u"add"_s);
            type_into(user, 0, 3, u"Lyon"_s);
            leave_by_title_bar(user);
        });
        QCOMPARE(store.rows(), u",,0"_s);
    }

    void several_partners_are_entered_by_the_keyboard_alone()
    {
        const partner_store store;
        in_partners([](hand& user) {
            const QStringList people[] = {{u"Alder"_s, u"Ann"_s}, {u"Birch"_s, u"Bob"_s}};
            for (const QStringList& person : people) {
                user.look([] { active_form()->findChild<QWidget*>(u"add"_s)->setFocus(); });
                user.key(Qt::Key_Return);
                user.type(person[0]);
                user.key(Qt::Key_Tab);
                user.type(person[1]);
                user.key(Qt::Key_Return);
            }
            accept_partners(user);
        });
        QCOMPARE(store.rows(), u"Alder,Ann,%1 | Birch,Bob,%2"_s.arg(code_of(u"Alder"_s, u"Ann"_s))
                                   .arg(code_of(u"Birch"_s, u"Bob"_s)));
    }

    void names_with_quotes_and_accents_are_stored()
    {
        const partner_store store;
        in_partners([](hand& user) {
            user.click(u"add"_s);
            user.type(u"O'Brien"_s);
            user.key(Qt::Key_Return);
            user.type(u"Éléonore"_s);
            accept_partners(user);
        });
        QCOMPARE(store.rows(), u"O'Brien,Éléonore,%1"_s.arg(code_of(u"O'Brien"_s, u"Éléonore"_s)));
    }

    void the_window_closes_although_the_store_refuses_the_rows_data()
    {
        QTest::addColumn<QString>("button");
        QTest::newRow("OK") << u"cmdSave"_s;
        QTest::newRow("Cancel") << u"cmdAn"_s;
        QTest::newRow("the title bar") << QString();
    }
    void the_window_closes_although_the_store_refuses_the_rows()
    {
        QFETCH(QString, button);
        const partner_store store;
        store.add_three();
        store.store.write(refuse(u"update"_s, u"partners"_s));
        for (int time = 0; time < 2; ++time) {
            in_partners([&](hand& user) {
                type_into(user, 0, 3, u"Lyon"_s);
                if (button.isEmpty())
                    leave_by_title_bar(user);
                else
                    user.click(button);
            });
            QVERIFY(!store.frame.locked);
            QCOMPARE(store.rows(), u"Cedar,Cleo,3 | Alder,Ann,1 | Birch,Bob,2"_s);
        }
    }
};

QTEST_MAIN(test_partner_rows)
#include "test_partner_rows.moc"
