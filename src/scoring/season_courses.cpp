#include "scoring/season_courses.h"

#include <algorithm>
#include <tuple>

namespace verdane {

namespace {

season_course& entry_of(std::vector<season_course>& courses, const season_round& round)
{
    const auto found = std::find_if(courses.begin(), courses.end(), [&](const season_course& course) {
        return course.code == round.course_code;
    });
    return found != courses.end() ? *found
                                  : courses.emplace_back(season_course{round.course_code, round.course, {}});
}

bool comes_first(const season_course& one, const season_course& other)
{
    return std::tuple(-one.sums.rounds, one.course, one.code) <
           std::tuple(-other.sums.rounds, other.course, other.code);
}

}  // namespace

std::vector<season_course> courses_of_season(const season_rounds& rounds,
                                             const std::vector<season_figures>& figures)
{
    std::vector<season_course> courses;
    for (std::size_t i = 0; i < rounds.size(); ++i)
        entry_of(courses, rounds[i]).sums.add(figures[i]);
    std::sort(courses.begin(), courses.end(), comes_first);
    return courses;
}

}  // namespace verdane
