#pragma once

#include <QString>
#include <QStringList>

#include <optional>

#include "records/round_list.h"
#include "statistics/selection.h"

class QComboBox;
class QFormLayout;
class QLabel;
class QListWidget;

/// The controls in which the user selects rounds, in the selection window and in the golf bag.
namespace verdane {

/// The owner creates them by `make_selection_controls`, lays them out and keeps them private. The first entry
/// of a filter means no filter; the others are in the order of the rows of their table.
struct selection_controls {
    QListWidget* first_round;
    QListWidget* last_round;
    QComboBox* weather;
    QComboBox* partner;
    QComboBox* course;
};

/// Creates the controls with their system names. The lists of rounds have that size.
selection_controls make_selection_controls(int characters_of_a_line, int lines_in_view);

/// Adds a filter with its label below the others. The filter is the buddy of the label, so that screen
/// readers read the label. The filter is `characters` wide.
void add_filter(QFormLayout& form, QLabel* label, QComboBox* filter, int characters);

/// Opens the stored rounds in time order and the holes of the courses, fills both lists with the lines of the
/// rounds, closes them again, and returns the number of rounds.
int fill_rounds(const selection_controls& controls,
                Round_functions::course_names names = Round_functions::course_names::as_stored);

/// The letters of the tees in the filter of courses: as `tee_name` gives them, or capitals.
enum class tee_letters { as_named, capitals };

/// Adds SURNAME, NAME of every partner, whose entry has the code of the partner as its data, and then name
/// and tee of every course.
void fill_partners_and_courses(const selection_controls& controls, bool french, tee_letters letters);

/// Adds the four weathers, in the order of their stored values.
void fill_weather(const selection_controls& controls, bool french);

/// The texts for the heading of a report where a filter is off. Without a weather, the text of the first
/// entry is used.
struct unfiltered_texts {
    QString partner;
    QString course;
    std::optional<QString> weather = {};
};

/// The selection of the user. The keys of the rounds are read from the selected lines by position. Reads
/// `rsvrd_fields`, which must be closed and is closed again.
selection_arguments selection_of(const selection_controls& controls, clause_form form,
                                 const unfiltered_texts& texts);

}  // namespace verdane
