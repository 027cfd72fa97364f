#pragma once

#include <QString>

#include <array>

#include "tests/kills/last_words.h"
#include "tests/kills/told_hole.h"
#include "tests/support/reader.h"

namespace verdane::testing {

/// What the only round of a store must hold, from one death of the program to the next.
class kept_round {
public:
    explicit kept_round(const reader& store);

    /// Compares the store with what it held and what the dead program said. A hole that was left has exactly
    /// its last figures. The one that was under way has all its old figures or all its new ones; its shots
    /// are the old ones, of which the last may be missing, or the first of the new ones, and all of them
    /// before a figure is new.
    /// Returns what is wrong, nothing when all is well; what is stored counts from now on.
    QString compare(const last_words& words);

    /// Holes count from 1.
    const stored_hole& hole(int number) const { return holes_[static_cast<std::size_t>(number) - 1]; }
    /// The hole was told and left, and nobody has begun to tell it anew since.
    bool is_told(int number) const { return told_[static_cast<std::size_t>(number) - 1]; }

private:
    stored_hole& at(int number) { return holes_[static_cast<std::size_t>(number) - 1]; }
    void take(const last_words& words);

    const reader& store_;
    std::array<stored_hole, 18> holes_;
    std::array<bool, 18> told_{};
};

}  // namespace verdane::testing
