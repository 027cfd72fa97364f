#pragma once

#include <QString>

#include "records/course_entry.h"

namespace verdane {

/// What the course editor refuses in a course, in the current language, with the name of the column; empty if
/// it accepts the course. Texts have no blanks at either end.
QString fault_of(const entered_course& course);

}  // namespace verdane
