#pragma once

#include <QStringList>

#include <vector>

#include "records/course_entry.h"
#include "transfer/csv_file.h"

/// Scorecards in a CSV file: a first line with the names of the columns, then a line for each course.
namespace verdane {

/// A course with the line of the file on which it is.
struct course_line {
    int line = 0;
    entered_course course;
};

/// The names of the columns: name, tee, rating, slope, yards_1 to yards_18, par_1 to par_18, hcp_1 to hcp_18.
/// A file may have them in any order.
const QStringList& course_columns();

/// The courses of a file, with the checks of the course editor; blanks around a value are ignored. A course
/// that is in the file twice is a fault of the second line. Every fault is added to `faults`, at most one for
/// each line.
std::vector<course_line> read_courses(const QString& path, bad_lines& faults);

}  // namespace verdane
