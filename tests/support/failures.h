#pragma once

#include <optional>

#include "base/run_time_failure.h"

namespace verdane::testing {

/// The kind of the failure that `work` throws; no value if it returns.
template <typename Work>
std::optional<failure_kind> failure_of(Work&& work)
{
    try {
        work();
    } catch (const run_time_failure& failure) {
        return failure.kind();
    }
    return std::nullopt;
}

}  // namespace verdane::testing
