#include "tests/statistics/generated_diary.h"

#include <random>

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

    QString partners()
    {
        static const QStringList lists{QString(), u"12-"_s, u"112-7-"_s, u"7-"_s};
        return lists.at(pick(0, 3));
    }

private:
    // A fixed seed: the diary is the same on every machine.
    std::mt19937 engine_{20030614};
};

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

}  // namespace verdane::testing
