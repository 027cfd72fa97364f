#pragma once

#include <QString>

#include <boost/safe_numerics/safe_integer.hpp>

// native.hpp does not stand on its own: it needs what safe_integer.hpp declares.
#include <boost/safe_numerics/exception_policies.hpp>
#include <boost/safe_numerics/native.hpp>
#include <cstdint>

#include "base/run_time_failure.h"

namespace verdane {

/// Turns a checked integer's error into the program's own failure. The library's policies act by
/// being constructed.
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

/// The plain integer inside a checked one, for use as an index, in a text or in a sum of decimals
/// (the library has no sound conversion from a checked integer to a double).
inline int plain(int16 value)
{
    return static_cast<std::int16_t>(value);
}
inline int plain(int32 value)
{
    return static_cast<std::int32_t>(value);
}

}  // namespace verdane
