#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace verdane {

class Connection1;
class diary_snapshot;

/// The order in which problems are repaired.
enum class repair_step {
    indexes,     ///< commits by itself; nothing can be written before
    rows,        ///< all of them are one commit
    new_indexes  ///< after that commit: some engines commit before they create an index
};

/// Something that is wrong in a diary.
struct diary_problem {
    QString what;
    /// Where it is, up to a few places.
    QStringList places;
    int count = 0;
    /// Repairs the problem; empty if the user must decide how.
    std::function<void(Connection1&)> repair;
    /// A table or a column is missing or in another place: nothing else can be checked or repaired.
    bool in_structure = false;
    /// Shots without a round.
    bool lost_shots = false;
    /// The windows cannot correct it: a copy must be restored.
    bool needs_copy = false;
    repair_step step = repair_step::rows;
};

/// Checks tables and columns, the rows of tables of fixed size, the indexes and the rules of the diary.
/// `diary` has the rows of the store. Texts are in the current language. Fails with `store_damaged` if more
/// than indexes is damaged, and with the kind that fits the engine's error.
std::vector<diary_problem> find_problems(const Connection1& store, const diary_snapshot& diary);

}  // namespace verdane
