#pragma once

#include <QDate>

namespace verdane {
class f_get_date;
class f_new_round;
}  // namespace verdane

/// What the tee-off dialog does.
namespace verdane::f_get_date_func {

/// Puts the captions into English when that is the language; OK gets the focus.
void activate(f_get_date& dialog);

/// A date was double-clicked: it is chosen, and OK gets the focus. It does not confirm the dialog.
void date_chosen(f_get_date& dialog, const QDate& date);

/// Leaves the round without a key; the round window then goes by itself.
void cancel(f_get_date& dialog, f_new_round& round);

/// Refuses a moment that is taken, asks once more, then writes the key into the round's three rows
/// (which are not committed) and into the window. Fails with `subscript` when `round_keys` is full.
void accept_date(f_get_date& dialog, f_new_round& round);

}  // namespace verdane::f_get_date_func
