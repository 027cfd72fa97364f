#pragma once

#include <QString>
#include <QStringView>

#include <array>

#include "base/language.h"
#include "scoring/limits.h"

/// The codes that courses, rounds and shots are stored with, and the words for them in both languages. Each
/// list is defined here once.
namespace verdane {

// Courses

/// The colours of the tees, by their digit 0 to 7.
inline constexpr std::array<text_pair, 8> tee_words{{{u"Blanc", u"White"},
                                                     {u"Bleu", u"Blue"},
                                                     {u"Rouge", u"Red"},
                                                     {u"Or", u"Gold"},
                                                     {u"Bronze", u"Bronze"},
                                                     {u"Jaune", u"Yellow"},
                                                     {u"Vert", u"Green"},
                                                     {u"Noir", u"Black"}}};

// Rounds

/// The weathers, by their stored value 0 to 3.
inline constexpr std::array<text_pair, 4> weather_words{{{u"Ensoleillé", u"Sunny"},
                                                         {u"Ciel variable", u"Variable cloudiness"},
                                                         {u"Pluie", u"Rainy"},
                                                         {u"Vent", u"Windy"}}};

// Shots. A row of the shot table stores a word with each code, in the language in which the shot was entered,
// so the rows of one hole may have words of both languages.

/// The club number of the putter, the last club of the bag.
constexpr int putter = club_count;
/// The name of the putter where the program chooses the club itself.
inline constexpr QStringView putter_word = u"Pu";

/// Kinds of shot.
constexpr int long_shot = 1;
constexpr int approach_shot = 2;
constexpr int putt = 3;
inline constexpr std::array<text_pair, 3> kind_words{
    {{u"Long", u"Long"}, {u"Approche", u"Approach"}, {u"Putt", u"Putt"}}};

/// Where a shot stopped.
constexpr int in_the_fairway = 1;
constexpr int to_the_left = 2;
constexpr int to_the_right = 3;
inline constexpr std::array<text_pair, 3> position_words{
    {{u"Dans l'allé", u"Fairway"}, {u"Gauche", u"Left"}, {u"Droite", u"Right"}}};

/// Penalties. The last entry of the menu removes one.
constexpr int water_hazard = 1;
constexpr int lost_ball = 2;
constexpr int against_the_rules = 3;
constexpr int out_of_bounds = 4;
constexpr int no_penalty = 5;
inline constexpr std::array<text_pair, 5> penalty_words{{{u"Eau", u"Water Hazard"},
                                                         {u"Balle perdue", u"Lost Ball"},
                                                         {u"Règlement", u"Rules"},
                                                         {u"Hors limites", u"Out of Bounds"},
                                                         {u" ", u" "}}};

/// The text of a position or penalty column whose code is 0.
inline constexpr QStringView blank_word = u" ";

inline constexpr text_pair yes_word{u"Oui", u"Yes"};
inline constexpr text_pair no_word{u"Non", u"No"};

/// Units of distance: read in both languages, written in the language of the interface.
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
