#pragma once

#include <QImage>
#include <QRect>

namespace verdane {
class report_document;
}

/// Stored pictures of the pages of reports, and their comparison.
namespace verdane::testing {

/// A page, counted from 0, as it is stored for comparison: in colour, with about three dots per millimetre.
QImage picture_of(const report_document& document, int page);

/// By how many shades of red, green or blue, of 255, two pictures of one size differ in a square as large
/// as a letter: the largest difference of such a square in `area`. A shift by one dot is no difference.
double largest_difference(const QImage& one, const QImage& other, const QRect& area);

/// The number of shades from which a page looks different. A missing word, however short and pale, makes
/// more; letters that another version of the toolkit shifts by a fraction of a dot make less.
constexpr double noticed_shades = 16.5;

}  // namespace verdane::testing
