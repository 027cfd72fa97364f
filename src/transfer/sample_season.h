#pragma once

namespace verdane {

/// Writes an invented season into the store of `data_environment`, which has no rows of its own: courses,
/// partners, averages of the clubs, and rounds from April to October with their costs, every second one with
/// all its shots. Words of shots and tees are in the current language; all else is always the same. The
/// caller commits. Returns the number of rounds. Fails with the kind that fits the engine's error.
int write_sample_season();

}  // namespace verdane
