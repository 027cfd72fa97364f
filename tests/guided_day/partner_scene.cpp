#include <vector>

#include "store/Connection1.h"
#include "tests/guided_day/day.h"

namespace verdane::guided_day {

using namespace Qt::StringLiterals;

namespace {

struct person {
    QString name;
    QString surname;
    QString city;
};

const std::vector<person>& people_of(const day& today)
{
    static const std::vector<person> morning{{u"Tremblay"_s, u"Josée"_s, u"Québec"_s},
                                             {u"Côté"_s, u"Luc"_s, u"Lévis"_s}};
    static const std::vector<person> afternoon{{u"O'Brien"_s, u"Sean"_s, u"Dublin"_s},
                                               {u"Baker"_s, u"Ann"_s, u"Leith"_s}};
    return today.french ? morning : afternoon;
}

/// Types name, surname and city into a new row.
void add_partner(day& today, const person& partner)
{
    today.user.click(u"add"_s);
    today.user.type(partner.name);
    today.user.key(Qt::Key_Tab);
    today.user.type(partner.surname);
    today.user.key(Qt::Key_Tab);
    today.user.key(Qt::Key_Tab);
    today.user.type(partner.city);
    today.user.key(Qt::Key_Return);
}

}  // namespace

void add_partners(day& today)
{
    today.user.menu(u"mpartners"_s);
    today.user.wait_for_window(today.window(u"f_partners"_s));
    for (const person& partner : people_of(today))
        add_partner(today, partner);
    // Leaving the last row commits it, and the commit gives the partner a code.
    today.user.key(Qt::Key_Up);
    today.save_picture(u"f_partners"_s, u"f_partners"_s);
    today.user.click(u"cmdSave"_s);
    today.user.wait_until_closed(today.window(u"f_partners"_s));
    for (const person& partner : people_of(today)) {
        const QString stored = u"select count(*) from partners where name = %1 and surname = %2 "
                               u"and ad2 = %3 and code > 0"_s.arg(
                                   quoted(partner.name), quoted(partner.surname), quoted(partner.city));
        today.user.same(today.store.number(stored), 1, u"the partner " + partner.name);
    }
}

}  // namespace verdane::guided_day
