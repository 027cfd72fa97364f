#pragma once

#include <QString>

#include "store/store_location.h"

namespace verdane::testing {

/// The greatest number of rounds of a diary.
constexpr int rounds_of_full_diary = 366;

/// Creates a store with a diary: the published courses, six partners, and rounds on consecutive days from
/// 1 January 2023, in all weathers, with and without partners, alternately in French and English, each with
/// its costs. A detailed diary has every shot (about 84 a round), and the figures of a hole are the sums
/// of its shots; otherwise it has the same figures without shots. The content is the same on every machine.
void create_diary(const store_location& place, int rounds, bool detailed);
inline void create_diary(const QString& file, int rounds, bool detailed)
{
    create_diary(store_location::file(file), rounds, detailed);
}

/// Clears the length of the sixth putt on every hole of a diary: the putt statistics fail on a hole that has
/// one.
void clear_sixth_putts(const store_location& place);
inline void clear_sixth_putts(const QString& file)
{
    clear_sixth_putts(store_location::file(file));
}

/// Key of a round of such a diary, counted from 0.
QString key_in_diary(int round);

}  // namespace verdane::testing
