#pragma once

#include <chrono>

namespace verdane::bench {

/// Wall-clock seconds since its construction.
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
