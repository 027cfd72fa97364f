#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace verdane {

class Connection1;

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
    /// The windows cannot correct it: a copy must be put back.
    bool needs_copy = false;
};

/// Checks tables and columns, the rows of tables of fixed size, the indexes and the rules of the diary. The
/// store is open on the connection of `data_environment`, which has checked its file for damage. Texts are in
/// the current language. Fails like `diary_snapshot`.
std::vector<diary_problem> find_problems(const Connection1& store);

}  // namespace verdane
