#pragma once

#include <QString>

#include "records/course_entry.h"
#include "scoring/hole_shots.h"

namespace verdane {

class row_insertion;

/// A hole of a round of the sample.
struct sample_hole {
    QString key;
    /// From 1.
    int number = 0;
    const entered_course& course;

    int yards() const;
    int par() const;
};

/// Inserts the shots of a hole into the shot table, with their words in the current language.
void add_shots(row_insertion& insertion, const sample_hole& hole, const shot_list& shots);

}  // namespace verdane
