#pragma once

#include <QRandomGenerator>
#include <QString>

#include <array>
#include <vector>

#include "tests/support/reader.h"

/// A hole as it is entered shot by shot, and a hole as it is stored.
namespace verdane::testing {

constexpr int figures_of_a_hole = 11;
constexpr int putts_of_a_hole = 6;

/// A shot that is entered on the detailed page: kind 1 long, 2 approach, 3 putt; position 1 fairway, 2 left,
/// 3 right; penalty 1 to 4, 0 none. The distance is in yards, a putt's in feet; 0 is not typed.
struct entered_shot {
    int club = 1;
    int distance = 0;
    int kind = 1;
    int position = 1;
    int penalty = 0;
    bool sand = false;
};

using entered_hole = std::vector<entered_shot>;

/// A hole of one to six shots; the last one is a putt or a shot from outside the green.
entered_hole random_hole(QRandomGenerator& random);

/// Converts a hole to a text without blanks, and back.
QString text_of(const entered_hole& hole);
entered_hole hole_from(const QString& text);

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

/// A hole in the store. The figures are in the order of the quick page: long, approach, putts, fairway, sand,
/// missed, recovery, water, lost, rule, bounds.
struct stored_hole {
    std::array<int, figures_of_a_hole> figures{};
    std::array<int, putts_of_a_hole> putts{};
    stored_shots shots;

    bool operator==(const stored_hole&) const = default;
};

/// What is stored after the last shot of a hole was entered and the hole was left.
stored_hole outcome_of(const entered_hole& hole);

/// A hole of the only round of the store.
stored_hole read_hole(const reader& store, int hole);

/// The values as a text, for the message of a failure.
QString described(const stored_hole& hole);

/// Whether the rows are a valid state while the shots of a hole are entered: its first shots as entered, the
/// last one complete or not.
bool is_start_of(const stored_shots& rows, const entered_hole& hole);

/// Whether the rows are older ones without some of the last ones.
bool is_rest_of(const stored_shots& rows, const stored_shots& older);

}  // namespace verdane::testing
