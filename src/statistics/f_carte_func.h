#pragma once

namespace verdane {
class f_carte;
}

/// What the scorecard window does; both its twins come here.
namespace verdane::f_carte_func {

/// Opens the recordsets of the courses and fills the list.
void load(f_carte& window);

/// The OK button: writes the selected course and the clubs' averages into the two rows of `r_card` and
/// launches the report as its last act. Fails with `misuse` on a course without its holes.
void print(f_carte& window);

void cancel(f_carte& window);

/// The window goes: closes its recordsets.
void unload();

}  // namespace verdane::f_carte_func
