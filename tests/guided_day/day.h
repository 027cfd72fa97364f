#pragma once

#include "tests/guided_day/played_round.h"
#include "tests/guided_day/visit.h"
#include "tests/support/scorecards.h"

namespace verdane::guided_day {

/// One day of golf: a round entered in counts, and one whose first holes are told shot by shot.
struct day : visit {
    const testing::scorecard& card;
    played_round round;
    played_round told_round;
};

// The scenes of a day, in the order in which they are played.
void choose_first_language(day& today);
void look_around(day& today);
void describe_course(day& today);
void keep_partners(day& today);
void play_round(day& today);
void reopen_round(day& today);
void print_statistic(day& today);
void check_store(day& today);
void tell_round(day& today);
void remove_round(day& today);

/// Holds the figures of a round, its course and its costs against the store.
void check_round(const day& today, const played_round& round);

}  // namespace verdane::guided_day
