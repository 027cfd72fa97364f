#pragma once

#include <QStringList>

namespace verdane::Round_functions {

/// Opens `rsgames` on every stored round, the earliest first. The statement that the statistics leave in
/// force has no order, so code that shows rounds opens them with this function. Fails with `misuse` if
/// `rsgames` is open.
void open_rounds_in_time_order();

/// How a list shows the names of the courses.
enum class course_names { as_stored, in_capitals };

/// The line of a list for each row of `rsgames`, in the order of the rows, with the mark of an incomplete
/// round. The caller has opened `rsgames`, which is at `eof()` afterwards.
QStringList round_list_lines(course_names names = course_names::as_stored);

}  // namespace verdane::Round_functions
