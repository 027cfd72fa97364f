#pragma once

class QComboBox;
class QFormLayout;
class QLabel;

/// The filters of the selection window and of the golf bag. The first entry of each means no filter; the
/// others are in the order of the rows of their table.
namespace verdane {

/// Adds a filter with its label below the others. The label is the filter's buddy, so that screen readers
/// read it.
void add_filter(QFormLayout& form, QLabel* label, QComboBox* filter);

/// SURNAME, NAME of every partner; an entry's data is the partner's code.
void fill_partner_filter(QComboBox& list, bool french);

/// Name and tee of every course, with the tee's name as it is or in capitals.
enum class tee_letters { as_called, capitals };
void fill_course_filter(QComboBox& list, bool french, tee_letters letters = tee_letters::as_called);

/// The four kinds of weather, in the order of their stored values.
void fill_weather_filter(QComboBox& list, bool french);

}  // namespace verdane
