#pragma once

#include <QString>

namespace verdane {

class course_general_page;
class course_holes;

/// The rows of the course in the editor: the current row of `rsvrd_fields`, and the current row of
/// `rsfield_info` with its holes. The caller has moved both to the course, or added a row to each.
namespace edited_course {

/// Shows the rows on the pages. The tee is locked.
void show(course_general_page& general, course_holes& holes);

/// Writes the key of a new course to both rows: `base`, a dash and the digit of the tee.
void write_key(const course_general_page& general, const QString& base);

/// Writes the boxes of all pages to the rows.
void write(const course_general_page& general, const course_holes& holes);

/// Commits the holes, then the course, and finds both rows again. False if one was not found; it is committed
/// nevertheless.
bool commit();

/// Discards what is pending on both rows.
void cancel();

}  // namespace edited_course
}  // namespace verdane
