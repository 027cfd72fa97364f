#pragma once

#include <QStringList>

class QComboBox;

namespace verdane {

class f_new_round;

/// What belongs to the round as a whole: course, weather, partners, costs.

/// Fills a drop-down without choosing an entry and without an event.
void fill_silently(QComboBox& list, const QStringList& entries);

/// Fills `cmb_courses` with a line for each row of `rsvrd_fields`, in the rows' order; nothing is
/// chosen. The recordset is left at its end.
void fill_courses(f_new_round& window);

/// The four kinds of weather, the first one chosen.
void fill_conditions(f_new_round& window);

/// Opens `rspartners` and fills the list; the partners of the round on `rsgames2` are selected.
void fill_partners(f_new_round& window);

/// The numbers of the selected partners, in the list's order.
QStringList selected_partners(const f_new_round& window);

/// Shows the twelve amounts of the round's cost row added up. Fails with `overflow` beyond 16 bits.
void show_cost_total(f_new_round& window);

}  // namespace verdane
