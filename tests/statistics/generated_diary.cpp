#include "tests/statistics/generated_diary.h"

#include <random>

#include "scoring/limits.h"

namespace verdane::testing {

namespace {

class generator {
public:
    int pick(int first, int last) { return first + static_cast<int>(engine_() % (last - first + 1U)); }

    hole_entry hole()
    {
        hole_entry hole;
        hole.stored = pick(1, 40) > 1;
        hole.long_shots = pick(0, 3);
        hole.approach = pick(0, 3);
        hole.putts = pick(0, 4);
        for (int* penalty : {&hole.rule, &hole.water, &hole.bounds, &hole.lost})
            *penalty = pick(1, 12) == 1 ? pick(1, 2) : 0;
        hole.sand = pick(0, 2);
        hole.missed = pick(0, 1);
        hole.fairway = pick(0, 2);
        return hole;
    }

    /// A hole with three strokes or more, and now and then a penalty.
    hole_entry played_hole()
    {
        return {.long_shots = 1,
                .approach = pick(0, 2),
                .putts = pick(1, 3),
                .water = pick(1, 30) == 1 ? 1 : 0,
                .lost = pick(1, 40) == 1 ? 1 : 0};
    }

    QString partners()
    {
        static const QStringList lists{QString(), u"12-"_s, u"112-7-"_s, u"7-"_s};
        return lists.at(pick(0, 3));
    }

private:
    // A fixed seed: the diary is the same on every machine.
    std::mt19937 engine_{20030614};
};

/// The holes that are played in a round of the full diary.
std::size_t played_holes(int round)
{
    if (round % 30 == 6)
        return 0;
    return round % 9 == 0 ? 12 : 18;
}

}  // namespace

std::vector<diary_course> courses_of_generated_diary()
{
    return {course_of(u"Pebble Beach"_s, u"Gold"_s), course_of(u"Carnoustie Championship"_s, u"Yellow"_s),
            course_of(u"North Berwick West Links"_s, u"Blue"_s)};
}

std::vector<diary_round> generated_diary()
{
    generator any;
    const auto all = courses_of_generated_diary();
    std::vector<diary_round> rounds;
    for (int day = 1; day <= rounds_in_diary; ++day) {
        diary_round round{key_of_day(3 * day),
                          all.at(static_cast<std::size_t>(any.pick(0, 2))),
                          {},
                          any.pick(0, 3),
                          any.partners()};
        for (hole_entry& hole : round.holes)
            hole = any.hole();
        rounds.push_back(round);
    }
    return rounds;
}

std::vector<diary_course> ten_courses()
{
    std::vector<diary_course> courses;
    for (int i = 0; i < 10; ++i) {
        diary_course course = course_of_pars(u"434544354"_s.sliced(i % 5), QString::number(69.5 + 0.3 * i),
                                             QString::number(110 + 4 * i));
        course.code = u"TEN%1-0"_s.arg(i);
        course.name = u"Ten %1"_s.arg(i);
        course.name_tee = course.name + u"-0";
        courses.push_back(course);
    }
    return courses;
}

std::vector<diary_round> full_generated_diary()
{
    generator any;
    const auto all = ten_courses();
    std::vector<diary_round> rounds;
    for (int day = 1; day <= most_rounds; ++day) {
        diary_round round{key_of_day(day), all.at(static_cast<std::size_t>(any.pick(0, 9))), {}, 0, {}};
        for (std::size_t hole = 0; hole < round.holes.size(); ++hole) {
            if (hole < played_holes(day))
                round.holes.at(hole) = any.played_hole();
            else
                round.holes.at(hole).stored = day % 2 == 0;
        }
        rounds.push_back(round);
    }
    return rounds;
}

}  // namespace verdane::testing
