#pragma once

#include "store/recovery/diary_rule.h"

namespace verdane {

/// The conditions of `games`, `games2` and `cost`, in the order in which they are repaired.
std::vector<diary_rule> rules_of_rounds();

/// What follows `from` in a query for the rows of a table whose key is not that of a round. Keys are compared
/// without blanks around them: a row whose key differs only by blanks belongs to the round, and another rule
/// reports the blanks.
QString without_round(const QString& table);

}  // namespace verdane
