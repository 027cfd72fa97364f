#pragma once

#include <QString>

#include <vector>

namespace verdane {

class Connection1;
class diary_snapshot;

/// The result for the shots of a key that has no round.
struct lost_round {
    QString key;
    /// Empty if the round was made; the reason otherwise, in the current language.
    QString refusal;
};

/// Makes a round of the shots of each key that has no round: the figures of each hole are counted from its
/// shots. The course is the only one whose pars and lengths are those of the shots; if there is none, or more
/// than one, nothing is made. The same holds for a wrong key, unknown codes, and a full diary. `diary` has
/// the rows of the store. The caller commits. Fails with the kind that fits the engine's error.
std::vector<lost_round> make_lost_rounds(Connection1& store, const diary_snapshot& diary);

}  // namespace verdane
