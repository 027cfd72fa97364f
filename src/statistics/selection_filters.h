#pragma once

#include <QString>

class QComboBox;
class QFormLayout;
class QLabel;
class QListWidget;

/// The lists in which the user selects rounds, in the selection window and in the golf bag. The first entry
/// of a filter means no filter; the others are in the order of the rows of their table.
namespace verdane {

/// Adds a filter with its label below the others. The filter is the buddy of the label, so that screen
/// readers read the label.
void add_filter(QFormLayout& form, QLabel* label, QComboBox* filter);

/// SURNAME, NAME of every partner; the data of an entry is the code of the partner.
void fill_partner_filter(QComboBox& list, bool french);

/// Name and tee of every course; the name of the tee as `tee_name` gives it, or in capitals.
enum class tee_letters { as_named, capitals };
void fill_course_filter(QComboBox& list, bool french, tee_letters letters = tee_letters::as_named);

/// The four weathers, in the order of their stored values.
void fill_weather_filter(QComboBox& list, bool french);

/// True if an entry other than the first is selected.
bool is_on(const QComboBox& filter);

/// The key of the round on the selected line, read by position.
QString chosen_round_key(const QListWidget& rounds);

/// The stored weather, "0" to "3"; empty if the filter is off.
QString chosen_weather(const QComboBox& conditions);

/// The number of the partner; empty if the filter is off.
QString chosen_partner(const QComboBox& partners);

/// The code of the course; empty if the filter is off. Reads `rsvrd_fields`, which must be closed and is
/// closed again.
QString chosen_course(const QComboBox& courses);

}  // namespace verdane
