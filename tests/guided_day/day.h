#pragma once

#include "tests/guided_day/played_round.h"
#include "tests/guided_day/visit.h"
#include "tests/support/scorecards.h"

namespace verdane::guided_day {

/// One day of golf: a round entered as counts, and a round whose first holes are entered shot by shot.
struct day : visit {
    const testing::scorecard& card;
    played_round round;
    played_round detailed_round;
};

// The scenes of a day, in the order in which they are played.
void choose_first_language(day& today);
void show_main_and_about_window(day& today);
void enter_course(day& today);
void add_partners(day& today);
void enter_round(day& today);
void reopen_round(day& today);
void print_statistic(day& today);
void check_store(day& today);
void enter_detailed_round(day& today);
void remove_round(day& today);

/// Compares the figures and the course of a round with the store.
void check_round(const day& today, const played_round& round);

}  // namespace verdane::guided_day
