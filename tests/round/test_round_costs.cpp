#include <QTest>

#include "base/language.h"
#include "tests/round/round_windows.h"
#include "tests/support/languages.h"

using namespace verdane;
using namespace verdane::testing;

namespace {

const QString total_of_costs = QStringLiteral("text_7");
const QString stored_amounts = QStringLiteral("select fg || ' ' || cm || ' ' || au from cost");

QString cost_window()
{
    return in_language(u"f_cost", u"f_cost_en");
}

void open_costs(hand& user)
{
    user.click(QStringLiteral("Command2"));
    user.wait_for_window(cost_window());
}

void leave_costs_by_the_close_box(hand& user)
{
    user.close_window(cost_window());
    user.wait_until_gone(cost_window());
    user.wait_for_window(round_window());
}

void type_green_fees(hand& user, const QString& amount)
{
    open_costs(user);
    user.fill(QStringLiteral("cost_0"), amount);
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
        store.store.write(QStringLiteral("update cost set fg = 40, cm = 5, au = 7"));
        in_stored_round(key_of_keyed_round(), [&](hand& user) {
            type_green_fees(user, QStringLiteral("100"));
            user.same(user.text(total_of_costs), QStringLiteral("112"), QStringLiteral("typed total"));
            open_costs(user);
            user.same(user.text(QStringLiteral("cost_0")), QStringLiteral("40"), QStringLiteral("amount"));
            user.same(user.text(QStringLiteral("Text1")), QStringLiteral("52"), QStringLiteral("total"));
            leave_costs_by_the_close_box(user);
            user.same(user.text(total_of_costs), QStringLiteral("52"), QStringLiteral("stored total"));
            type_green_fees(user, QStringLiteral("9"));
            user.same(user.text(total_of_costs), QStringLiteral("21"), QStringLiteral("typed total"));
            accept(user);
        });
        QCOMPARE(store.text(stored_amounts), QStringLiteral("40 5 7"));
        in_stored_round(key_of_keyed_round(), [](hand& user) {
            user.same(user.text(total_of_costs), QStringLiteral("52"), QStringLiteral("reopened"));
            discard(user);
        });
    }

    void a_new_round_keeps_its_zeros_when_the_close_box_leaves_the_costs()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([](hand& user) {
            type_green_fees(user, QStringLiteral("25"));
            user.same(user.text(total_of_costs), QStringLiteral("25"), QStringLiteral("typed total"));
            accept(user);
        });
        QCOMPARE(store.text(stored_amounts), QStringLiteral("0 0 0"));
    }
};

QTEST_MAIN(test_round_costs)

#include "test_round_costs.moc"
