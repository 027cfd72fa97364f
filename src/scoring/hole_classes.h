#pragma once

#include <QString>

#include <array>

#include "base/language.h"
#include "scoring/hole_arithmetic.h"

/// The twenty-four classes of a hole. They overlap by design: a hole in one on a par 3 is an eagle
/// too.
namespace verdane {

/// One class: its number, the index of its box `text` on the panel of the round window, its label.
struct selector_row {
    int selector;
    int box;
    text_pair label;
};

constexpr int class_count = 24;

/// The classes in the order in which the panel asks for them: 1, then 6 to 28.
extern const std::array<selector_row, class_count> panel_selectors;

/// The class that stands at place `i`, 1 to 24, of the round statistics: 1, 25 to 28, 6 to 24. Fails
/// with `subscript` for another place.
int summary_selector(int i);

/// The text of one class for one hole: "1" when the hole belongs to it, " " when not; for the averages
/// (15 to 17) the gross. Class 12 on a par below 3, and a class that does not exist (2 to 5 and all
/// others), give the empty text.
QString hole_cell(int selector, const hole_figures& f, int16 par);

/// The number at the head of that text, without making the text: 0 for the empty ones.
int16 hole_cell_value(int selector, const hole_figures& f, int16 par);

}  // namespace verdane
