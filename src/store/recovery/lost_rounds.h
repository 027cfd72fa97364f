#pragma once

#include <QString>
#include <QVariant>

#include <utility>
#include <vector>

namespace verdane {

class Connection1;
class diary_snapshot;

/// What can be done with the shots of a key that has no round.
struct lost_round {
    QString key;
    /// Why no round can be made of them, in the current language; empty if one can.
    QString refusal;
    /// The rows of the round that the diary lacks, by the names of their tables.
    std::vector<std::pair<QString, std::vector<QVariant>>> rows;
};

/// Plans a round for the shots of each key that has no round: the figures of each hole are counted from its
/// shots. What is left of the other rows of the round is kept. The course is the only one whose pars and
/// lengths are those of the shots; if there is none, or more than one, there can be no round. The same holds
/// for a wrong key, holes without shots, unknown codes, and a full diary. `diary` has the rows of the store.
std::vector<lost_round> find_lost_rounds(const diary_snapshot& diary);

/// Inserts the rows of a round that was planned. The caller commits. Fails with the kind that fits the
/// engine's error.
void make_round(const Connection1& store, const lost_round& round);

}  // namespace verdane
