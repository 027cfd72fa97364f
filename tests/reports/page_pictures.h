#pragma once

#include <QImage>
#include <QRect>

namespace verdane {
class report_document;
}

/// Pages of reports as pictures that are kept, and how they are compared.
namespace verdane::testing {

/// A page, counted from 0, as it is kept for comparison: in colour, some three dots a millimetre.
QImage picture_of(const report_document& document, int page);

/// By how many shades of red, green or blue, of 255, two pictures of one size differ in a square as large
/// as a letter: the most that any such square of `area` has. What moved by a dot is no difference.
double largest_difference(const QImage& one, const QImage& other, const QRect& area);

/// From how many shades on a page looks different: a missing word makes more, however short and pale;
/// letters that another version of the toolkit sets a hair's breadth apart make less.
constexpr double noticed_shades = 16.5;

}  // namespace verdane::testing
