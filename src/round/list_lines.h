#pragma once

#include <QString>

/// The lines of the lists from which the user selects what belongs to a round.
namespace verdane {

/// A course and tee in the list of courses.
struct course_line {
    QString name;
    /// The last character is the code of the tee.
    QString code;
};

/// A partner in the list of partners.
struct partner_line {
    QString text;
    /// The partner's number, as it is stored with the round.
    QString number;
    /// The partner is one of the round on the current row of `rsgames2`.
    bool selected = false;
};

}  // namespace verdane
