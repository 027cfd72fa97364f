#include <QTest>

#include "base/language.h"
#include "tests/round/round_windows.h"
#include "tests/support/languages.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

const QString total_of_costs = u"text_7"_s;
const QString stored_amounts = u"select fg || ' ' || cm || ' ' || au from cost"_s;

QString cost_window()
{
    return in_language(u"f_cost", u"f_cost_en");
}

void open_costs(hand& user)
{
    user.click(u"Command2"_s);
    user.wait_for_window(cost_window());
}

void leave_costs_by_the_close_box(hand& user)
{
    user.close_window(cost_window());
    user.wait_until_closed(cost_window());
    user.wait_for_window(round_window());
}

void type_green_fees(hand& user, const QString& amount)
{
    open_costs(user);
    user.fill(u"cost_0"_s, amount);
    leave_costs_by_the_close_box(user);
}

}  // namespace

class test_round_costs : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_close_box_of_the_costs_shows_the_typed_total_and_stores_nothing_data() { both_languages(); }
    void the_close_box_of_the_costs_shows_the_typed_total_and_stores_nothing()
    {
        QFETCH(bool, french);
        const round_store store(french);
        store.add_two_courses();
        store.add_round(key_of_keyed_round());
        store.store.write(u"update cost set fg = 40, cm = 5, au = 7"_s);
        in_stored_round(key_of_keyed_round(), [&](hand& user) {
            type_green_fees(user, u"100"_s);
            user.same(user.text(total_of_costs), u"112"_s, u"typed total"_s);
            open_costs(user);
            user.same(user.text(u"cost_0"_s), u"40"_s, u"amount"_s);
            user.same(user.text(u"Text1"_s), u"52"_s, u"total"_s);
            leave_costs_by_the_close_box(user);
            user.same(user.text(total_of_costs), u"52"_s, u"stored total"_s);
            type_green_fees(user, u"9"_s);
            user.same(user.text(total_of_costs), u"21"_s, u"typed total"_s);
            accept(user);
        });
        QCOMPARE(store.text(stored_amounts), u"40 5 7"_s);
        in_stored_round(key_of_keyed_round(), [](hand& user) {
            user.same(user.text(total_of_costs), u"52"_s, u"reopened"_s);
            discard(user);
        });
    }

    void a_new_round_has_zeros_after_the_close_box_of_the_costs()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([](hand& user) {
            type_green_fees(user, u"25"_s);
            user.same(user.text(total_of_costs), u"25"_s, u"typed total"_s);
            accept(user);
        });
        QCOMPARE(store.text(stored_amounts), u"0 0 0"_s);
    }
};

QTEST_MAIN(test_round_costs)

#include "test_round_costs.moc"
