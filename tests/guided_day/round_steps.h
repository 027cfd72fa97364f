#pragma once

#include "tests/guided_day/day.h"

/// Steps in the round window that several scenes take.
namespace verdane::guided_day {

/// Fills the tee-off dialog, which a new round opens with, and settles the moment. A picture of the dialog
/// is kept under the name, if there is one.
void tee_off(day& today, const QString& hours, const QString& minutes, const QString& seconds,
             const QString& picture = {});

/// Chooses the course that was described on this day: it stands last in the list.
void choose_course(day& today);

/// Types the figures of some holes into the quick page.
void type_holes(day& today, const played_round& round, int first_hole, int last_hole);

/// Puts a fee and a meal down to the round on screen, whose total is then seen in its window. A picture
/// of the costs is kept under the name, if there is one.
void keep_costs(day& today, int fee, int meal, const QString& picture = {});

}  // namespace verdane::guided_day
