#pragma once

#include "tests/support/diary.h"

/// A diary of all kinds of rounds: any number of strokes, putts and penalties on each hole, some holes
/// without strokes and some that were never stored, in all weathers, with and without partners.
namespace verdane::testing {

constexpr int rounds_in_diary = 60;

std::vector<diary_course> courses_of_generated_diary();

/// Every third day of the year. The diary is the same on every machine.
std::vector<diary_round> generated_diary();

/// As many rounds as a diary takes, on ten courses: every ninth ends after twelve holes, the sixth and every
/// thirtieth after it have no strokes. Their strokes can be added up without an overflow.
std::vector<diary_course> ten_courses();
std::vector<diary_round> full_generated_diary();

}  // namespace verdane::testing
