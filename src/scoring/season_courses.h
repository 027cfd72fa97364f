#pragma once

#include "scoring/season_rounds.h"

namespace verdane {

/// The rounds on one course.
struct season_course {
    QString code;
    QString course;
    season_sums sums;
};

/// One entry for each course, the one with the most rounds first, then by name. `figures` are those of
/// `rounds`, in the same order.
std::vector<season_course> courses_of_season(const season_rounds& rounds,
                                             const std::vector<season_figures>& figures);

}  // namespace verdane
