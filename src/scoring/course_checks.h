#pragma once

#include <QChar>
#include <QString>
#include <QStringList>
#include <QStringView>

/// The checks of what is entered for a course: its general figures, and the figures of its holes.
namespace verdane {

/// The longest name that the round window can show.
constexpr int course_name_characters = 195;
/// The most characters of a rating and of a slope.
constexpr int course_figure_characters = 6;
/// The most characters of a figure of a hole: the digits of the largest length that can be stored, 32767.
constexpr int hole_figure_characters = 5;

/// The name becomes part of the course's key: letters without accents, and blanks.
bool may_be_in_course_name(QChar character);

/// Rating and slope: digits, and any number of points.
bool may_be_in_course_figure(QChar character);

/// True if none of the three texts is empty or blank. A course is stored only then.
bool has_name_and_figures(QStringView name, QStringView rating, QStringView slope);

// A figure of a hole passes if it is numeric and its value is allowed; 0 means that the figure is not known
// yet and always passes.

enum class hole_refusal { none, not_numeric, index_of_other_hole, index_too_high, no_par };

hole_refusal check_yards(const QString& text);

/// `others` are the texts of the other seventeen boxes, in the order of the holes. Values are compared as
/// they are stored, rounded half to even. A negative value passes. Fails with `overflow` on another box whose
/// number exceeds 16 bits.
hole_refusal check_stroke_index(const QString& text, const QStringList& others);

/// 3 to 5, before rounding: 0.4 would be stored as 0, but is not a par.
hole_refusal check_par(const QString& text);

}  // namespace verdane
