#pragma once

#include <QString>

namespace verdane {

/// Pages are laid out in tenths of a point, so that line breaks depend on no screen, window or printer, and
/// fonts and rules have fine steps although the layout counts in whole units.
constexpr double units_per_mm = 720.0 / 25.4;
constexpr double units_per_pt = 10.0;

/// The edge of the paper on which printers do not print, in millimetres.
constexpr double unprintable_rim = 6;

/// Additional space between letters, too small to be visible. Letters with additional space form no
/// ligatures, so that a search in a PDF file finds a word with "ffi".
constexpr double spacing_without_ligatures = 0.02;

/// A length such as "12mm", "8.5pt" or "1px" (1/96 inch) in layout units; a negative number when the
/// text is no such length.
double length_in_units(const QString& text);

/// HTML whose tags and styles give lengths in mm, pt and px, with those lengths in layout units. The
/// text between the tags stays as it is.
QString with_layout_units(const QString& html);

}  // namespace verdane
