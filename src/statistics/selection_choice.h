#pragma once

#include <QString>

class QComboBox;
class QListWidget;

/// The user's choices in the lists of a selection. The first entry of every filter means no filter and is
/// returned as an empty text.
namespace verdane {

bool is_on(const QComboBox& filter);

/// The key of the round on the selected line, read back by position.
QString chosen_round_key(const QListWidget& rounds);

/// The stored weather, "0" to "3".
QString chosen_weather(const QComboBox& conditions);

/// The partner's number.
QString chosen_partner(const QComboBox& partners);

/// The code of the course. Reads `rsvrd_fields`, which must be closed and is closed again.
QString chosen_course(const QComboBox& courses);

}  // namespace verdane
