#pragma once

#include "base/failure_words.h"

namespace verdane {

/// The part of `failure_words` for registered data sources.
text_pair source_failure_words(failure_kind kind);

}  // namespace verdane
