#pragma once

#include "store/recovery/diary_rule.h"

namespace verdane {

/// The conditions of `Stat_rounds`, in the order in which they are repaired.
std::vector<diary_rule> rules_of_shots();

/// The first of them: every shot has its round. A round can be made of shots without a round.
const diary_rule& rule_of_lost_shots();

}  // namespace verdane
