#include <QTest>

#include "scoring/Verdane_tools.h"
#include "tests/reference/partner_windows.h"
#include "tests/support/window_look.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

const QString grid = u"pgrid"_s;
constexpr int code_column = 6;

int code_of(QString name, QString surname)
{
    return plain(Verdane_tools::name_checksum(name, surname));
}

/// Pastes a text into a cell.
void paste_into(hand& user, int row, int column, const QString& text)
{
    user.click_cell(grid, row, column);
    user.key(Qt::Key_F2);
    user.paste(u"cell_being_typed"_s, text);
    user.key(Qt::Key_Return);
}

}  // namespace

class test_partner_input : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_cell_takes_any_text_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("stored");
        QTest::newRow("quotes") << u"d'Arc \"Jo\" O''Neil"_s << u"d'Arc \"Jo\" O''Neil"_s;
        QTest::newRow("a statement") << u"'; delete from partners; --"_s << u"'; delete from partners; --"_s;
        QTest::newRow("accents") << u"Éléonore Ñandú ß"_s << u"Éléonore Ñandú ß"_s;
        QTest::newRow("other scripts") << u"Ольга 山田 😀"_s << u"Ольга 山田 😀"_s;
        QTest::newRow("a number") << u"-99999999999"_s << u"-99999999999"_s;
        QTest::newRow("blanks around") << u"  Ash  "_s << u"  Ash  "_s;
        QTest::newRow("percent signs") << u"%1 %n &Ash"_s << u"%1 %n &Ash"_s;
    }
    void a_cell_takes_any_text()
    {
        QFETCH(QString, text);
        QFETCH(QString, stored);
        const partner_store store;
        store.add_three();
        in_partners([&](hand& user) {
            paste_into(user, 0, 0, text);
            paste_into(user, 0, 2, text);
            user.same(user.cell(grid, 0, 0), stored, u"shown"_s);
            accept_partners(user);
        });
        const int code = code_of(stored, u"Ann"_s);
        QCOMPARE(store.store.text(u"select NAME || '|' || AD1 from partners where code = %1"_s.arg(code)),
                 QString(stored + u'|' + stored));
        QCOMPARE(store.store.number(u"select count(*) from partners"_s), 3);
    }

    void a_very_long_name_is_stored_up_to_the_length_of_a_box()
    {
        const partner_store store;
        store.add_three();
        const QString name(30000, u'Z');
        in_partners([&](hand& user) {
            paste_into(user, 1, 0, name);
            accept_partners(user);
        });
        QCOMPARE(store.store.number(u"select length(NAME) from partners where SURNAME = 'Bob'"_s), 30000);
        QCOMPARE(store.store.number(u"select code from partners where SURNAME = 'Bob'"_s),
                 code_of(name, u"Bob"_s));
    }

    void a_name_of_blanks_counts_as_missing_data() { both_languages(); }
    void a_name_of_blanks_counts_as_missing()
    {
        QFETCH(bool, french);
        const partner_store store(french);
        store.add_three();
        in_partners([](hand& user) {
            paste_into(user, 0, 1, u"   "_s);
            accept_partners(user);
            user.answer(refusal_of_missing_name());
            user.wait_for_window(partner_window());
            user.same(user.cursor(grid), u"0,1"_s, u"cursor"_s);
            paste_into(user, 0, 1, u"Ann"_s);
            accept_partners(user);
        });
        QCOMPARE(store.rows(),
                 u"Cedar,Cleo,3 | Alder,Ann,%1 | Birch,Bob,2"_s.arg(code_of(u"Alder"_s, u"Ann"_s)));
    }

    void a_code_that_is_no_number_is_refused_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("letters") << u"abc"_s;
        QTest::newRow("digits and a letter") << u"12b"_s;
        QTest::newRow("beyond 32 bits") << u"2147483648"_s;
        QTest::newRow("huge") << QString(400, u'9');
    }
    void a_code_that_is_no_number_is_refused()
    {
        QFETCH(QString, text);
        const partner_store store;
        store.add_three();
        in_partners([&](hand& user) {
            const int bells = user.bells();
            paste_into(user, 0, code_column, text);
            user.same(user.bells() - bells, 1, u"bells"_s);
            user.same(user.cell(grid, 0, code_column), u"1"_s, u"code"_s);
            accept_partners(user);
        });
        QCOMPARE(store.rows(), u"Cedar,Cleo,3 | Alder,Ann,1 | Birch,Bob,2"_s);
    }

    void a_typed_or_emptied_code_is_replaced_by_that_of_the_name_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("a number") << u"77"_s;
        QTest::newRow("a negative number") << u"-5"_s;
        QTest::newRow("nothing") << u" "_s;
    }
    void a_typed_or_emptied_code_is_replaced_by_that_of_the_name()
    {
        QFETCH(QString, text);
        const partner_store store;
        store.add_three();
        in_partners([&](hand& user) {
            paste_into(user, 0, code_column, text);
            accept_partners(user);
        });
        QCOMPARE(store.rows(),
                 u"Cedar,Cleo,3 | Alder,Ann,%1 | Birch,Bob,2"_s.arg(code_of(u"Alder"_s, u"Ann"_s)));
    }

    void a_name_with_special_characters_is_shown_unchanged_in_the_title()
    {
        const partner_store store;
        store.add(u"<b>A&B</b>"_s, u"%1 'x'"_s, 1);
        in_partners([](hand& user) {
            user.click(u"Del"_s);
            user.answer(question_on_removal(u" <b>A&B</b> %1 'x'"_s), QMessageBox::No);
            user.wait_for_window(partner_window());
            accept_partners(user);
        });
    }
};

QTEST_MAIN(test_partner_input)
#include "test_partner_input.moc"
