#pragma once

#include <QString>

/// The warning of the round window that few saves are left: each save takes one of the places for round keys,
/// and a save without a place ends the program (`Main_module::append_round_key`).
namespace verdane {

/// The number of places from which on the window warns.
constexpr int few_places = 20;

struct places_warning {
    /// One line; empty if there are enough places.
    QString line;
    /// What the line means and what to do.
    QString explanation;
};

/// The warning for that many places. `rounds` is the number of rounds that have a key: if they leave few
/// places to the next run, too, the explanation names the command that moves rounds.
places_warning warning_of_places(int places, int rounds, bool french);

}  // namespace verdane
