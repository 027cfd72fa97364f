#pragma once

#include <QString>

// In a separate block, because it must be included before native.hpp, which uses its declarations.
#include <boost/safe_numerics/safe_integer.hpp>

#include <boost/safe_numerics/exception_policies.hpp>
#include <boost/safe_numerics/native.hpp>
#include <cstdint>

#include "base/run_time_failure.h"

namespace verdane {

/// Error policy of the checked integers: throws a `run_time_failure`. Boost calls a policy by constructing
/// it.
struct throw_overflow {
    [[noreturn]] throw_overflow(const boost::safe_numerics::safe_numerics_error&, const char* message)
    {
        throw run_time_failure(failure_kind::overflow, QString::fromLatin1(message));
    }
};

using overflow_policy =
    boost::safe_numerics::exception_policy<throw_overflow, throw_overflow, throw_overflow, throw_overflow>;

/// A count: a 16-bit integer whose sums and assignments fail (`failure_kind::overflow`) instead of
/// wrapping.
using int16 = boost::safe_numerics::safe<std::int16_t, boost::safe_numerics::native, overflow_policy>;

/// An amount of money: the same in 32 bits.
using int32 = boost::safe_numerics::safe<std::int32_t, boost::safe_numerics::native, overflow_policy>;

/// A sum of counts that starts at 0.
struct tally {
    int16 sum = 0;

    /// Fails with `overflow` if the sum exceeds 16 bits.
    void add(int16 value) { sum = sum + value; }
};

/// The value of a checked integer as an `int`, for an index, a text or a calculation with doubles: Boost does
/// not convert checked integers to doubles reliably.
inline int plain(int16 value)
{
    return static_cast<std::int16_t>(value);
}
inline int plain(int32 value)
{
    return static_cast<std::int32_t>(value);
}

}  // namespace verdane
