#include "tests/reference/golf_bags.h"

#include <QTest>

#include "base/language.h"
#include "records/Main_module.h"
#include "reference/f_sticks.h"
#include "tests/statistics/report_rows.h"
#include "tests/support/window_look.h"

using namespace Qt::StringLiterals;

namespace verdane::testing {

QString bag_window()
{
    return in_language(u"f_sticks", u"f_sticks_en");
}

filled_bag::filled_bag(bool french) : stored_diary(french)
{
    book.store.write({u"update sticks set avg_1 = 200.5, avg_14 = 3"_s,
                      u"update sticknames set club_1 = 'D1', club_14 = 'PU'"_s});
    for (int i = 0; i < 14; ++i)
        Main_module::club_names[i] = book.store.text(u"select club_%1 from sticknames"_s.arg(i + 1));
    const diary_course course = course_of(u"Pebble Beach"_s, u"Gold"_s);
    book.add(course);
    book.add_partner(u"Anne"_s, u"Douze"_s, 12);
    for (int day = 1; day <= 3; ++day)
        book.add(diary_round{key_of_day(day), course, holes_over(course.pars, 0), day - 1,
                             day == 2 ? u"12-"_s : QString()});
    shot(1, 1, u"400, 150"_s);
    shot(2, 1, u"400, 200"_s);
    shot(2, 5, u"150, 10"_s);
    shot(3, 13, u"60, 5"_s);
}

void filled_bag::shot(int day, int club, const QString& lengths) const
{
    put_shot(book.store, key_of_day(day), club, u"before, after, unit, shot_type_value"_s,
             lengths + u", 'Yards', 1"_s);
}

double filled_bag::average(int club) const
{
    return book.store.value(u"select avg_%1 from sticks"_s.arg(club)).toDouble();
}

int filled_bag::shots(int club) const
{
    return book.store.number(u"select shots_%1 from sticks"_s.arg(club));
}

QString filled_bag::name(int club) const
{
    return book.store.text(u"select club_%1 from sticknames"_s.arg(club));
}

void in_bag(const std::function<void(hand&)>& script)
{
    play(
        [] {
            f_sticks window;
            window.show_modal();
        },
        [&](hand& user) {
            user.wait_for_window(bag_window());
            script(user);
            user.wait_until_closed(bag_window());
        });
    QVERIFY(open_recordsets().isEmpty());
}

void answer_keep(hand& user, QMessageBox::StandardButton answer)
{
    user.answer(
        {in_language(u"Désirez vous conservés ces moyennes ?", u"Do you want to keep these averages ?"),
         QMessageBox::NoIcon, u"VERDANE"_s, QMessageBox::Yes | QMessageBox::No},
        answer);
}

void compute(hand& user, int from, int to)
{
    user.click(u"Command1"_s);
    user.click_row(u"List1"_s, from);
    user.click_row(u"List2"_s, to);
    user.click(u"Actualiser"_s);
}

}  // namespace verdane::testing
