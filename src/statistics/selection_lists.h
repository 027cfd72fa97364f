#pragma once

class QComboBox;
class QFormLayout;
class QLabel;

/// The filters of the selection window and of the golf bag. Each begins with the entry that filters
/// nothing; the others follow in the order of their table's rows.
namespace verdane {

/// Puts a filter and its label below the others: beside it for the eye, and tied to it for whoever has the
/// window read out.
void add_filter(QFormLayout& form, QLabel* label, QComboBox* filter);

/// SURNAME, NAME of every partner; an entry's data is the partner's code.
void fill_partner_filter(QComboBox& list, bool french);

/// Name and tee of every course, the tee as it is called or in capitals.
enum class tee_letters { as_called, capitals };
void fill_course_filter(QComboBox& list, bool french, tee_letters letters = tee_letters::as_called);

/// The four kinds of weather, in the order of their stored values.
void fill_weather_filter(QComboBox& list, bool french);

}  // namespace verdane
