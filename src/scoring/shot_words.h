#pragma once

#include <QString>
#include <QStringView>

#include <array>

#include "base/language.h"

/// The codes of a shot and the words beside them. A row's words are those of the language in which it
/// was entered, so one hole may hold both languages side by side.
namespace verdane {

constexpr int club_menu_count = 14;
constexpr int putter = 14;
constexpr int long_shot = 1;
constexpr int approach_shot = 2;
constexpr int putt = 3;

constexpr int in_the_fairway = 1;
constexpr int to_the_left = 2;
constexpr int to_the_right = 3;

constexpr int against_the_rules = 3;
constexpr int out_of_bounds = 4;
/// The entry of the penalty menu that takes a penalty away.
constexpr int no_penalty = 5;

/// What stands in a text column whose code is none.
inline constexpr QStringView blank_word = u" ";
/// The putter's name where the program chooses it itself.
inline constexpr QStringView putter_word = u"Pu";

/// The words of the menus, entry 1 first.
inline constexpr std::array<text_pair, 3> kind_words{
    {{u"Long", u"Long"}, {u"Approche", u"Approach"}, {u"Putt", u"Putt"}}};
inline constexpr std::array<text_pair, 3> position_words{
    {{u"Dans l'allé", u"Fairway"}, {u"Gauche", u"Left"}, {u"Droite", u"Right"}}};
inline constexpr std::array<text_pair, 5> penalty_words{{{u"Eau", u"Water Hazard"},
                                                         {u"Balle perdue", u"Lost Ball"},
                                                         {u"Règlement", u"Rules"},
                                                         {u"Hors limites", u"Out of Bounds"},
                                                         {u" ", u" "}}};
inline constexpr text_pair yes_word{u"Oui", u"Yes"};
inline constexpr text_pair no_word{u"Non", u"No"};

/// The units of a distance. They are read in both languages and written in the interface's.
inline constexpr text_pair feet_words{u"Pieds", u"Feets"};
inline constexpr text_pair yards_words{u"Verges", u"Yards"};
constexpr int feet_in_a_yard = 3;

inline bool is_feet_word(QStringView unit)
{
    return unit == feet_words.french || unit == feet_words.english;
}
inline bool is_yards_word(QStringView unit)
{
    return unit == yards_words.french || unit == yards_words.english;
}

}  // namespace verdane
