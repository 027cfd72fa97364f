#pragma once

#include "base/language.h"
#include "base/run_time_failure.h"

namespace verdane {

/// What the user reads about a kind of failure: what happened, and what it means for the data.
text_pair failure_words(failure_kind kind);

}  // namespace verdane
