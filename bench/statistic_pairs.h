#pragma once

#include <functional>
#include <string>

#include "bench/plain_store.h"
#include "statistics/run_controls.h"
#include "statistics/selection.h"

/// A statistic of all rounds of a diary, up to the finished table.
namespace verdane::bench {

/// The statistic, and its floor: the same rows read with plain SQL and added up in memory. The floor does not
/// write the report tables.
struct statistic_pair {
    std::string name;
    std::function<bool(const selection_arguments&, run_progress&)> statistic;
    std::function<void(const plain_store&, const selection_arguments&)> floor;
    /// The form of clauses that the statistic expects.
    clause_form clauses = clause_form::appended;
    /// What the selection window does when it opens, which is not part of the statistic.
    std::function<void()> prepare = [] {};
};

/// Registers the statistic and its floor, both on the full diary and, with the suffix "_half", on the diary
/// with half the rounds.
void register_statistic(const statistic_pair& pair);

/// The selection of the first rounds of a diary, as the selection window returns it with every filter
/// off.
selection_arguments first_rounds(int rounds, clause_form clauses);

/// "PREFIX_1SUFFIX, PREFIX_2SUFFIX, ... PREFIX_18SUFFIX".
QString columns_of_holes(const QString& prefix, const QString& suffix = {});

}  // namespace verdane::bench
