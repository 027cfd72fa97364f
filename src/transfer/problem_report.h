#pragma once

#include <vector>

#include "store/recovery/diary_problems.h"

namespace verdane {

using problem_list = std::vector<diary_problem>;

/// Prints each problem with its places and how to repair it, in the current language.
void print_problems(const problem_list& problems);

}  // namespace verdane
