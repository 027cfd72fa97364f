#pragma once

#include <QString>

#include <vector>

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

/// Reads these lists from the store.
namespace verdane::round_lists {

/// One line for each row of `rsvrd_fields`, in the order of the rows. The recordset is at its end afterwards.
std::vector<course_line> course_lines();
/// Opens `rspartners` and returns one line for each row, in the order of the rows.
std::vector<partner_line> open_partner_lines();

}  // namespace verdane::round_lists
