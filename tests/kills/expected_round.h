#pragma once

#include <QString>

#include <array>

#include "tests/kills/entered_hole.h"
#include "tests/kills/run_log.h"
#include "tests/support/reader.h"

namespace verdane::testing {

/// What the only round of a store must contain after the program was killed.
class expected_round {
public:
    explicit expected_round(const reader& store);

    /// Compares the store with its last state and the log of the killed program. A hole that was left has
    /// exactly its last figures. The hole that was being changed has all its old figures or all its new ones.
    /// Its shots are the old ones, of which the last may be missing, or the first of the new ones; if a
    /// figure is new, all shots are. Returns the faults, or an empty text. The state of the store is the
    /// expected one from then on.
    QString compare(const run_log& log);

    /// Holes count from 1.
    const stored_hole& hole(int number) const { return holes_[static_cast<std::size_t>(number) - 1]; }
    /// Whether the shots of the hole were entered, the hole was left and no change of it has begun since.
    bool is_entered(int number) const { return entered_[static_cast<std::size_t>(number) - 1]; }

private:
    stored_hole& at(int number) { return holes_[static_cast<std::size_t>(number) - 1]; }
    void apply(const run_log& log);

    const reader& store_;
    std::array<stored_hole, 18> holes_;
    std::array<bool, 18> entered_{};
};

}  // namespace verdane::testing
