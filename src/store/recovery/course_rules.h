#pragma once

#include "store/recovery/diary_rules.h"

namespace verdane {

/// The conditions of the courses, and of the courses of rounds.
std::vector<diary_rule> rules_of_courses();

}  // namespace verdane
