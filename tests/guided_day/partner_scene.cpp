#include <vector>

#include "store/Connection1.h"
#include "tests/guided_day/day.h"

namespace verdane::guided_day {

namespace {

struct person {
    QString name;
    QString surname;
    QString city;
};

const std::vector<person>& people_of(const day& today)
{
    static const std::vector<person> morning{
        {QStringLiteral("Tremblay"), QStringLiteral("Josée"), QStringLiteral("Québec")},
        {QStringLiteral("Côté"), QStringLiteral("Luc"), QStringLiteral("Lévis")}};
    static const std::vector<person> afternoon{
        {QStringLiteral("O'Brien"), QStringLiteral("Sean"), QStringLiteral("Dublin")},
        {QStringLiteral("Baker"), QStringLiteral("Ann"), QStringLiteral("Leith")}};
    return today.french ? morning : afternoon;
}

/// Names and address are typed from the first column on.
void add_partner(day& today, const person& partner)
{
    today.user.click(QStringLiteral("add"));
    today.user.type(partner.name);
    today.user.key(Qt::Key_Tab);
    today.user.type(partner.surname);
    today.user.key(Qt::Key_Tab);
    today.user.key(Qt::Key_Tab);
    today.user.type(partner.city);
    today.user.key(Qt::Key_Return);
}

}  // namespace

void keep_partners(day& today)
{
    today.user.menu(QStringLiteral("mpartners"));
    today.user.wait_for_window(today.window(QStringLiteral("f_partners")));
    for (const person& partner : people_of(today))
        add_partner(today, partner);
    // Leaving the last row commits it, which gives the partner a code.
    today.user.key(Qt::Key_Up);
    today.keep(QStringLiteral("f_partners"), QStringLiteral("f_partners"));
    today.user.click(QStringLiteral("cmdSave"));
    today.user.wait_until_gone(today.window(QStringLiteral("f_partners")));
    for (const person& partner : people_of(today)) {
        const QString stored =
            QStringLiteral("select count(*) from partners where name = %1 and surname = %2 "
                           "and ad2 = %3 and code > 0")
                .arg(quoted(partner.name), quoted(partner.surname), quoted(partner.city));
        today.user.same(today.store.number(stored), 1, u"the partner " + partner.name);
    }
}

}  // namespace verdane::guided_day
