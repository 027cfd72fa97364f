#pragma once

#include <chrono>

namespace verdane::bench {

/// Seconds on the wall since it was made.
class stopwatch {
public:
    double seconds() const
    {
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start_).count();
    }

private:
    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

}  // namespace verdane::bench
