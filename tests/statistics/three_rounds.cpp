#include "tests/statistics/three_rounds.h"

using namespace Qt::StringLiterals;

namespace verdane::testing {

void add_three_rounds(const diary& book)
{
    const diary_course pebble = course_of(u"Pebble Beach"_s, u"Gold"_s);
    const diary_course berwick = course_of(u"North Berwick West Links"_s, u"Yellow"_s);
    book.add(pebble);
    book.add(berwick);
    book.add_partner(u"Zoé"_s, u"Sept"_s, 7);
    book.add_partner(u"Anne"_s, u"Douze"_s, 12);
    for (int day = 1; day <= 3; ++day) {
        const diary_course& course = day == 3 ? berwick : pebble;
        diary_round round{key_of_day(day), course, holes_over(course.pars, 0), 0, {}};
        round.holes[17].stored = day != 2;
        book.add(round);
    }
}

}  // namespace verdane::testing
