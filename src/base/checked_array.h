#pragma once

#include <QString>

#include <array>
#include <cstddef>

#include "base/run_time_failure.h"

namespace verdane {

/// Fails with `subscript` unless the index is one of `first` to `last`.
inline void check_index(int index, int first, int last)
{
    using namespace Qt::StringLiterals;
    if (index < first || index > last)
        throw run_time_failure(failure_kind::subscript,
                               u"index %1 is outside %2 to %3"_s.arg(index).arg(first).arg(last));
}

/// An array of fixed length with the indices `First` to `First + Length - 1`. Any other index is a
/// `run_time_failure` of the kind `subscript`.
template <typename T, std::size_t Length, int First = 0>
class checked_array {
public:
    static constexpr int first_index = First;
    static constexpr int last_index = First + static_cast<int>(Length) - 1;

    T& operator[](int index) { return items_[position(index)]; }
    const T& operator[](int index) const { return items_[position(index)]; }

    /// Sets every item to its initial value.
    void clear() { items_ = {}; }

private:
    static std::size_t position(int index)
    {
        check_index(index, first_index, last_index);
        return static_cast<std::size_t>(index - first_index);
    }

    std::array<T, Length> items_{};
};

}  // namespace verdane
