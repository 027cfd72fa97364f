#pragma once

#include <vector>

#include "store/recovery/diary_rule.h"

namespace verdane {

/// All conditions, in the order in which a diary is repaired.
const std::vector<diary_rule>& diary_rules();

}  // namespace verdane
