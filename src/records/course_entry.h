#pragma once

#include <QString>

#include <array>

#include "records/course_keys.h"
#include "scoring/limits.h"

/// A course as texts, and how they are written to the current rows of `rsvrd_fields` and `rsfield_info`,
/// which are open. Except for `add_course`, the caller has moved both to the course, or added a row to each.
namespace verdane {

struct entered_course {
    /// A figure of each hole, by the index of the hole, from 0.
    using hole_texts = std::array<QString, hole_count>;

    QString name;
    QString rating;
    QString slope;
    std::array<QString, 3> address;
    /// The digit of the tee and its colour. Only `write_course_key` uses them.
    int tee = 0;
    QString tee_text;
    hole_texts yards;
    hole_texts stroke_indexes;
    hole_texts pars;
};

/// Writes the key of a new course to both rows: `base`, a dash and the digit of the tee. An empty `base`,
/// that of a name which is not stored yet (`known_course`), is replaced by the name in capitals.
void write_course_key(const entered_course& course, const QString& base);

/// Writes the texts, which the store converts, to both rows. Fails with `overflow` if a figure of a hole
/// exceeds 16 bits.
void write_course(const entered_course& course);

/// Commits the holes, then the course, and finds both rows again. False if one was not found; it is committed
/// nevertheless.
bool commit_course();

/// `find_known_course` for the name and the tee of a course.
known_course find_known_course(const entered_course& course);

/// Adds a row to both recordsets, writes and commits the course. It is the current row then, and in
/// `course_keys`. Fails like `write_course`.
void add_course(const entered_course& course);

}  // namespace verdane
