#pragma once

#include "records/course_entry.h"
#include "records/course_keys.h"

/// Courses in the store of `data_environment`.
namespace verdane {

/// Opens the recordsets of the courses and fills `course_keys`. Returns the number of courses.
int open_courses();

/// Looks for a course in `course_keys`.
known_course known(const entered_course& course);

/// Adds a course, which is then the current row and in `course_keys`. Fails like `write_course`.
void add_course(const entered_course& course);

}  // namespace verdane
