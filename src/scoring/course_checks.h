#pragma once

#include <QChar>
#include <QStringView>

/// The checks of the general figures of a course. `hole_checks.h` has those of its holes.
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

}  // namespace verdane
