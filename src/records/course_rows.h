#pragma once

#include <QString>
#include <QStringView>

#include "store/Recordset.h"

/// Positions `rsvrd_fields` and `rsfield_info` on the rows of a course. The caller has opened them.
namespace verdane::Round_functions {

/// Moves `rsvrd_fields` to the row with the index that the course has in a list filled in row order, from 0.
/// With an index beyond the last row it is at `eof()`.
void move_to_course(int list_index);

/// Moves `rsfield_info` to the holes of the course in the current row of `rsvrd_fields`, or to `eof()` if
/// there are none.
void find_holes_of_course(search_direction direction = search_direction::forward);

}  // namespace verdane::Round_functions

namespace verdane::Verdane_tools {

/// `tee_name_in` for the current language of the interface.
QString tee_name(QStringView digit);

}  // namespace verdane::Verdane_tools
