#pragma once

#include "base/counts.h"

namespace verdane {

/// A sum of counts that starts at 0.
struct tally {
    int16 sum = 0;

    /// Fails with `overflow` if the sum exceeds 16 bits.
    void add(int16 value) { sum = sum + value; }
};

}  // namespace verdane
