#pragma once

#include <QString>

namespace verdane::testing {

/// As many rounds as a diary has room for.
constexpr int rounds_of_full_diary = 366;

/// Lays down a store with a diary: the published courses, six partners, and rounds on consecutive days
/// from 1 January 2023, in all weathers, alone or in company, written in French and English by turns,
/// each with its costs. Detailed, every shot is there (about ninety a round) and its hole's figures
/// are what those shots add up to; otherwise the same figures stand alone. The same on every machine.
void lay_down_diary(const QString& store_path, int rounds, bool detailed);

/// Takes the length of the sixth putt from every hole of a diary: the putt statistics fail on a hole that
/// has one.
void forget_sixth_putts(const QString& store_path);

/// Key of a round of such a diary, counted from 0.
QString key_in_diary(int round);

}  // namespace verdane::testing
