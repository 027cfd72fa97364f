#pragma once

#include <QString>

#include "base/checked_array.h"
#include "scoring/limits.h"

namespace verdane {

class Recordset;

/// A course and tee as the editor's duplicate test sees it: both trimmed.
struct course_key {
    QString name_tee;
    QString code;
};

/// The courses of the store in table order, filled by the course list and read by the editor's save.
/// An entry that is not in use is empty.
extern checked_array<course_key, most_courses> course_keys;

/// Keeps the current row of `rsvrd_fields` at an index. Fails with `subscript` beyond the table.
void keep_course_key(int index, Recordset& rsvrd_fields);

/// Empties the table and keeps as many rows as fit: a list that outgrew it while it was open must still
/// be able to shrink. The recordset is left on another row or at `eof()`.
void rebuild_course_keys(Recordset& rsvrd_fields);

/// Adds the current row at the first free index, unless its code is in the table already. Nothing happens
/// when the table is full; the list fails then when it is opened again.
void remember_new_course(Recordset& rsvrd_fields);

}  // namespace verdane
