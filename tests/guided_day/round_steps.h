#pragma once

#include "tests/guided_day/day.h"

/// Steps in the round window, for several scenes.
namespace verdane::guided_day {

/// Fills the tee-off dialog of a new round and confirms the time. Saves a picture of the dialog if it has a
/// name.
void tee_off(day& today, const QString& hours, const QString& minutes, const QString& seconds,
             const QString& picture = {});

/// Chooses the last course of the list, which was entered on this day.
void choose_course(day& today);

/// Types the figures of some holes into the quick page.
void type_holes(day& today, const played_round& round, int first_hole, int last_hole);

/// Enters a fee and a meal for the open round and checks the total. Saves a picture of the costs if it has a
/// name.
void enter_costs(day& today, int fee, int meal, const QString& picture = {});

}  // namespace verdane::guided_day
