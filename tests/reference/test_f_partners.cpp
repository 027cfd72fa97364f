#include <QTest>

#include "base/language.h"
#include "controls/data_grid.h"
#include "controls/Form.h"
#include "reference/f_partners.h"
#include "store/DataEnvironment1.h"
#include "tests/reference/partner_windows.h"
#include "tests/support/ways_to_close.h"
#include "tests/support/window_look.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

const QString grid = u"pgrid"_s;

std::vector<way_to_close> ways()
{
    return ways_to_close(partner_window,
                         {{"OK", accept_partners}, {"Cancel", [](hand& user) { user.click(u"cmdAn"_s); }}});
}

}  // namespace

class test_f_partners : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_partners_are_sorted_by_name()
    {
        const partner_store store;
        store.add_three();
        store.store.write(u"update partners set AD1 = '1 Oak Road', AD2 = 'Lyon', TEL = '04 72', "
                          "MAIL = 'a@b.example' where code = 1"_s);
        in_partners([](hand& user) {
            user.same(user.grid_rows(grid), 3, u"rows"_s);
            user.same(user.grid_row(grid, 0), u"Alder | Ann | 1 Oak Road | Lyon | 04 72 | a@b.example | 1"_s,
                      u"first"_s);
            user.same(user.cell(grid, 1, 0) + user.cell(grid, 2, 0), u"BirchCedar"_s, u"others"_s);
            user.same(user.cursor(grid), u"0,0"_s, u"cursor"_s);
            user.same(user.focus(), grid, u"focus"_s);
            accept_partners(user);
        });
    }

    void closing_in_any_way_unlocks_the_menu_and_closes_the_recordset_data() { every_way_to_close(ways()); }
    void closing_in_any_way_unlocks_the_menu_and_closes_the_recordset()
    {
        QFETCH(leaving, leave);
        const partner_store store;
        store.add_three();
        // Twice: the window could not be opened again if a recordset were still open.
        for (int time = 0; time < 2; ++time) {
            in_partners([&](hand& user) {
                user.check(store.frame.locked, u"the menu is locked"_s);
                user.look([&] { user.check(current_form == active_form(), u"current_form"_s); });
                user.check(data_environment().rspartners.is_open(), u"rspartners is open"_s);
                leave(user);
            });
            QCOMPARE(open_recordsets(), QStringList());
            QVERIFY(!store.frame.locked);
        }
        QCOMPARE(store.rows(), u"Cedar,Cleo,3 | Alder,Ann,1 | Birch,Bob,2"_s);
    }

    void an_empty_table_closes_without_a_message_data() { every_way_to_close(ways()); }
    void an_empty_table_closes_without_a_message()
    {
        QFETCH(leaving, leave);
        const partner_store store;
        in_partners([&](hand& user) {
            user.same(user.grid_rows(grid), 0, u"rows"_s);
            user.click(u"Del"_s);
            user.check(!user.is_open(u"message_box"_s), u"no question is shown"_s);
            leave(user);
        });
        QCOMPARE(open_recordsets(), QStringList());
        QVERIFY(!store.frame.locked);
    }

    void closing_in_any_way_stores_what_was_typed_data() { every_way_to_close(ways()); }
    void closing_in_any_way_stores_what_was_typed()
    {
        QFETCH(leaving, leave);
        const partner_store store;
        store.add_three();
        in_partners([&](hand& user) {
            type_into(user, 0, 5, u"ann@golf.example"_s);
            leave(user);
        });
        QCOMPARE(store.store.text(u"select MAIL from partners where NAME = 'Alder'"_s),
                 u"ann@golf.example"_s);
    }

    void a_text_that_is_being_typed_is_stored_data()
    {
        auto some = ways();
        some.resize(3);
        every_way_to_close(some);
    }
    void a_text_that_is_being_typed_is_stored()
    {
        QFETCH(leaving, leave);
        const partner_store store;
        store.add_three();
        in_partners([&](hand& user) {
            user.click_cell(grid, 2, 1);
            user.type(u"Max"_s);
            leave(user);
        });
        QCOMPARE(store.rows(), u"Cedar,Max,597 | Alder,Ann,1 | Birch,Bob,2"_s);
    }

    void a_renamed_partner_keeps_its_position_until_the_window_is_opened_again()
    {
        const partner_store store;
        store.add_three();
        in_partners([](hand& user) {
            type_into(user, 0, 0, u"Zelkova"_s);
            user.click_cell(grid, 1, 0);
            user.same(user.cell(grid, 0, 0), u"Zelkova"_s, u"position before"_s);
            accept_partners(user);
        });
        in_partners([](hand& user) {
            user.same(user.cell(grid, 2, 0), u"Zelkova"_s, u"position after"_s);
            accept_partners(user);
        });
    }

    void rsgames_is_closed_with_the_window_if_it_was_open_data() { every_way_to_close(ways()); }
    void rsgames_is_closed_with_the_window_if_it_was_open()
    {
        QFETCH(leaving, leave);
        const partner_store store;
        store.add_three();
        data_environment().rsgames.Open();
        in_partners([&](hand& user) { leave(user); });
        QCOMPARE(open_recordsets(), QStringList());
    }

    void an_unloaded_window_ignores_save_and_close()
    {
        const partner_store store;
        store.add_three();
        f_partners window;
        window.closeForm();
        data_environment().rspartners.Open();
        window.closeForm();
        window.save();
        QVERIFY(data_environment().rspartners.is_open());
    }
};

QTEST_MAIN(test_f_partners)
#include "test_f_partners.moc"
