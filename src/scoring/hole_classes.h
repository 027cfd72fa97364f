#pragma once

#include <QString>

#include "scoring/hole_arithmetic.h"

/// The twenty-four classes of a hole. They overlap: a hole in one on a par 3 is an eagle, too.
namespace verdane {

constexpr int class_count = 24;

/// The classes by number. "Green hit" is a green reached in regulation (`in_regulation`), "green missed" one
/// that was not. The numbers 2 to 5 are not used.
namespace hole_class {
enum number : int {
    made_par = 1,
    green_missed = 6,
    green_missed_one_putt = 7,
    green_missed_two_putts = 8,
    green_missed_three_putts = 9,
    up_and_down = 10,
    chip_in = 11,
    made_par_3 = 12,
    made_par_4 = 13,
    made_par_5 = 14,
    average_of_par_3 = 15,
    average_of_par_4 = 16,
    average_of_par_5 = 17,
    hole_in_one = 18,
    double_eagle = 19,
    eagle = 20,
    birdie = 21,
    bogey = 22,
    double_bogey = 23,
    triple_bogey_or_more = 24,
    green_hit = 25,
    green_hit_one_putt = 26,
    green_hit_two_putts = 27,
    green_hit_three_putts = 28,
};
}  // namespace hole_class

/// The class in row `place`, 1 to 24, of the classes in the round statistics: 1, 25 to 28, 6 to 24. Fails
/// with `subscript` on another place.
int summary_selector(int place);

/// The text of one class for one hole: "1" if the hole belongs to it, " " if not. The three averages give the
/// gross of the hole. Class 12 on a par below 3 and a number that is no class give the empty text. Fails with
/// `overflow` if a sum of counts exceeds 16 bits.
QString hole_cell(int selector, const hole_figures& f, int16 par);

/// The number at the beginning of that text; 0 for the blank and the empty ones.
int16 hole_cell_value(int selector, const hole_figures& f, int16 par);

}  // namespace verdane
