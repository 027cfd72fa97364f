#pragma once

#include <QString>
#include <QStringView>

#include "base/checked_array.h"
#include "base/counts.h"
#include "scoring/limits.h"

/// The lists that exist for the whole run. The language is in `base/language.h`.
namespace verdane {

namespace Main_module {

/// The trimmed keys of the stored rounds. At the start they are in time order; each save of a round appends
/// its key, even one that the list already has.
extern checked_array<QString, most_rounds> round_keys;

/// The number of entries of `round_keys` in use, which is also the index of the next one.
extern int16 round_key_count;

/// The names of the 14 clubs; the last club is the putter.
extern checked_array<QString, club_count> club_names;

/// False after the golf bag was closed with the answer No: the names in `club_names` then differ from those
/// in the store until the end of the run.
extern bool club_names_kept;

/// Appends a key. Fails with `subscript` if the list is full.
void append_round_key(const QString& key);

/// How many more keys the list can take; each save of a round takes one place.
int places_left();
/// How many different rounds have a key in the list.
int rounds_with_key();

/// Copies the names of the 14 clubs from the store to `club_names`.
void load_club_names();

/// Copies the key of every stored round, in time order, to `round_keys`. Fails with `subscript`
/// if there are more than 366.
void load_round_keys();

}  // namespace Main_module

namespace Verdane_tools {

/// True if no entry of `round_keys` from index 0 to `round_key_count`, inclusive, equals the trimmed key.
/// Fails with `subscript` if the list is full.
bool key_free(QStringView key);

}  // namespace Verdane_tools

}  // namespace verdane
