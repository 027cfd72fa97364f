#pragma once

#include <QString>

#include "base/checked_array.h"
#include "base/counts.h"

namespace verdane {

/// The values that live for the whole run, open to every room. The language stands in `language.h`;
/// the references to open windows stand with the windows.
namespace Main_module {

/// Room for as many rounds as a store may hold.
constexpr int most_rounds = 366;
constexpr int club_count = 14;

/// The trimmed key of every stored round, in time order; a save appends to it and never looks
/// whether the key is there already.
extern checked_array<QString, most_rounds> round_keys;

/// How many entries of `round_keys` are in use; also the index of the next one.
extern int16 round_key_count;

/// The names of the 14 clubs; the last is the putter.
extern checked_array<QString, club_count> club_names;

/// False once the golf bag was left with a No: `club_names` are then this run's own, and the store has
/// others.
extern bool club_names_kept;

/// Appends a key. Fails with `subscript` when the list is full.
void append_round_key(const QString& key);

}  // namespace Main_module
}  // namespace verdane
