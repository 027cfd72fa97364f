#pragma once

namespace verdane {
class f_carte;
}

/// The logic of the scorecard window, shared by both twins.
namespace verdane::f_carte_func {

/// Opens the recordsets of the courses and fills the list.
void load(f_carte& window);

/// The OK button: writes the selected course and the club averages to the two rows of `r_card` and
/// finally launches the report. Fails with `misuse` on a course without a row of holes.
void print(f_carte& window);

void cancel(f_carte& window);

/// Closes the window's recordsets.
void unload();

}  // namespace verdane::f_carte_func
