#pragma once

#include <QRandomGenerator>
#include <QString>

#include <array>
#include <vector>

#include "tests/support/reader.h"

/// A hole as the victim of a kill tells it, and a hole as the store holds it.
namespace verdane::testing {

constexpr int figures_of_a_hole = 11;
constexpr int putts_of_a_hole = 6;

/// A shot that is told on the page: kind 1 long, 2 approach, 3 putt; position 1 fairway, 2 left, 3 right;
/// penalty 1 to 4, 0 none. The distance is in yards, a putt's in feet; 0 is not typed.
struct told_shot {
    int club = 1;
    int distance = 0;
    int kind = 1;
    int position = 1;
    int penalty = 0;
    bool sand = false;
};

using told_hole = std::vector<told_shot>;

/// A hole of two to six shots, holed by a putt or from off the green.
told_hole random_hole(QRandomGenerator& random);

/// A hole as one word of a line, and back.
QString word_of(const told_hole& hole);
told_hole hole_of(const QString& word);

/// A row of `Stat_rounds`; what has no value is 0.
struct stored_shot {
    int number = 0;
    int club = 0;
    int kind = 0;
    int after = 0;
    bool in_feet = false;
    int position = 0;
    int penalty = 0;
    bool sand = false;

    bool operator==(const stored_shot&) const = default;
};

using stored_shots = std::vector<stored_shot>;

/// What the store holds of a hole. The figures stand in the order in which the quick page takes them:
/// long, approach, putts, fairway, sand, missed, recovery, water, lost, rule, bounds.
struct stored_hole {
    std::array<int, figures_of_a_hole> figures{};
    std::array<int, putts_of_a_hole> putts{};
    stored_shots shots;

    bool operator==(const stored_hole&) const = default;
};

/// What a hole that was told to its end comes to.
stored_hole outcome_of(const told_hole& hole);

/// A hole of the only round of the store.
stored_hole read_hole(const reader& store, int hole);

/// In words, for a test that fails.
QString described(const stored_hole& hole);

/// True when the rows are what a hole that is being told may look like: its first shots as told, the last
/// of them perhaps not told to its end.
bool is_start_of(const stored_shots& rows, const told_hole& hole);

/// True when the rows are what is left of older ones of which the last were taken away.
bool is_rest_of(const stored_shots& rows, const stored_shots& older);

}  // namespace verdane::testing
