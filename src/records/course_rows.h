#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

#include "base/counts.h"
#include "store/Recordset.h"

/// The rows of a course in `rsvrd_fields` and `rsfield_info`.
namespace verdane::Round_functions {

void open_courses();
void close_courses();

/// The line of a list for each course, in the order of the rows: its name, padded with blanks to a width in
/// characters, and its tee in the current language. Courses are open, and `rsvrd_fields` is at `eof()`
/// afterwards.
QStringList course_list_lines(int16 width_of_name = 0);

/// Courses are open. Moves `rsvrd_fields` to the row with the index that the course has in a list filled in
/// row order, from 0. With an index beyond the last row it is at `eof()`.
void move_to_course(int list_index);

/// Courses are open. Moves `rsfield_info` to the holes of the course in the current row of `rsvrd_fields`, or
/// to `eof()` if there are none.
void find_holes_of_course(search_direction direction = search_direction::forward);
/// The same for the course of a code.
void find_holes_of_course(const QString& code, search_direction direction = search_direction::forward);

}  // namespace verdane::Round_functions

namespace verdane::Verdane_tools {

/// `tee_name_in` for the current language of the interface.
QString tee_name(QStringView digit);

}  // namespace verdane::Verdane_tools
