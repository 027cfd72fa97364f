#pragma once

#include <QString>

#include "base/checked_array.h"
#include "scoring/limits.h"

namespace verdane {

class Recordset;

/// A course from one tee, as the duplicate test of the course editor needs it. Both texts are trimmed.
struct course_key {
    QString name_tee;
    QString code;
};

/// The courses of the store in table order, filled by the course list. An entry that is not in use is
/// empty.
extern checked_array<course_key, most_courses> course_keys;

/// Stores the current row of `rsvrd_fields` at an index. Fails with `subscript` beyond the table.
void keep_course_key(int index, Recordset& rsvrd_fields);

/// Empties the table and stores as many rows as fit. It does not fail on more rows, because courses must be
/// removable from a list that has become longer than the table. The recordset is left on another row or at
/// `eof()`.
void rebuild_course_keys(Recordset& rsvrd_fields);

/// Adds the current row at the first free index, unless its code is in the table already. Nothing happens
/// when the table is full; the list fails then when it is opened again.
void append_course_key(Recordset& rsvrd_fields);

/// The end of a code and of a `name_tee`: a dash and the digit of the tee.
QString tee_mark(int tee);

/// A name in capitals with the mark of its tee. Two courses for which this text is equal are the same course.
QString name_with_tee(const QString& name_in_capitals, int tee);

/// The result of looking for a name in the table.
struct known_course {
    bool duplicate = false;  ///< the name is there with the same tee
    QString base;            ///< the code without its tee; empty if the name is not there
};

/// Looks for a name in capitals. Names are compared in capitals, so all tees of a course have the same base
/// however the name is spelled.
known_course find_known_course(const QString& name_in_capitals, int tee);

}  // namespace verdane
