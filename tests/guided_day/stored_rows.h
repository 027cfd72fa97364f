#pragma once

#include "tests/guided_day/album.h"
#include "tests/support/hand.h"
#include "tests/support/reader.h"

namespace verdane::guided_day {

/// Saves a text file in the album: a line for each row of each table, "games: 20260614093005|...", sorted.
/// Two days that stored the same have the same file.
void save_rows(album& pictures, testing::hand& user, const testing::reader& store, const QString& file);

}  // namespace verdane::guided_day
