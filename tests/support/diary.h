#pragma once

#include <QString>

#include <array>
#include <optional>
#include <vector>

#include "tests/support/reader.h"
#include "tests/support/scorecards.h"

/// A golfer's diary, written into a store from outside the program: courses, partners, rounds and shots.
namespace verdane::testing {

using namespace Qt::StringLiterals;

/// A figure of each hole.
using hole_values = std::array<int, 18>;
hole_values all_holes(int value);

/// The figures of one hole of a stored round.
struct hole_entry {
    int long_shots = 0;
    int approach = 0;
    int putts = 0;
    int rule = 0;
    int water = 0;
    int bounds = 0;
    int lost = 0;
    int sand = 0;
    int missed = 0;
    int fairway = 0;
    /// False leaves the three strokes without a value, as on a hole that was never stored.
    bool stored = true;

    int gross() const { return long_shots + approach + putts + rule + water + bounds + lost; }
};

using eighteen = std::array<hole_entry, 18>;

/// One long shot, two putts and approach shots for the rest of that many strokes (3 and up).
hole_entry hole_in(int strokes);

/// Eighteen holes in a number of strokes above or below each par.
eighteen holes_over(const hole_values& pars, int over);

/// The same figures on all holes.
eighteen same_holes(const hole_entry& hole);

/// A course. A null text leaves its column without a value.
struct diary_course {
    QString code = u"ALPHA-0"_s;
    QString name = u"Alpha"_s;
    QString name_tee = u"Alpha-0"_s;
    QString tee = u"BLANC"_s;
    QString rating = u"70.5"_s;
    QString slope = u"121"_s;
    hole_values pars = all_holes(4);
    hole_values yards = all_holes(300);
    hole_values stroke_index{};
    QString address_1 = u"Main Street 1"_s;
};

/// A published course, under the code it would have in the store.
diary_course course_of(const QString& name, const QString& tee);

/// A course whose pars follow the digits of `pars`, again and again; hole h is 100 + h yards long and has the
/// index 19 - h.
diary_course course_of_pars(const QString& pars, const QString& rating = u"70.5"_s,
                            const QString& slope = u"130"_s);

/// A course with the same par on every hole; hole h is 300 + h yards long and has the index h.
diary_course flat_course(const QString& code, int par, const QString& rating, const QString& slope);

struct diary_round {
    QString key;
    diary_course course;
    eighteen holes;
    int weather = 0;
    QString partners;
};

/// The parameters of a round except its course.
struct round_conditions {
    int weather = 0;
    int temperature = 20;
    QString partners = u""_s;
};

/// A round without figures: one row in each of `games`, `games2` and `cost`. Without a course name and
/// without conditions these columns have no value.
struct blank_round {
    QString key;
    QString course_code = u"ALPHA-0"_s;
    QString course_name = {};
    std::optional<round_conditions> conditions = {};
};

/// Key of a round on a day (from 1) of the year 2003.
QString key_of_day(int day);

/// A shot, as the statistics read it.
struct diary_shot {
    QString key;
    int hole = 1;
    int shot = 1;
    int kind = 1;
    int fairway = 0;
    int penalty = 0;
    bool sand = false;
    bool missed = false;
    int par = 4;
};

/// The SQL statements that add a course, or a round, to a store.
QStringList statements_of(const diary_course& course);
QStringList statements_of(const diary_round& round);
QStringList statements_of(const blank_round& round);

class diary {
public:
    explicit diary(const store_location& place) : store(place) {}
    explicit diary(const QString& file) : store(file) {}
    explicit diary(const reader& open_store) : store(open_store) {}

    void add(const diary_course& course) const;
    /// The round's rows of `games` and `games2`.
    void add(const diary_round& round) const;
    void add(const std::vector<diary_round>& rounds) const;
    void add(const blank_round& round) const;
    void add(const diary_shot& shot) const;
    /// Level-par rounds on the first days of the year. The weather is 1 on odd days, else 0.
    void add_days(const diary_course& course, int days) const;
    /// A null text leaves its column without a value.
    void add_partner(const QString& surname, const QString& name, int code) const;

    reader store;
};

/// The hole columns of a row of `stats` (rows from 0), front and back nine, all holes: 21 numbers.
std::vector<double> stats_row(const reader& store, int row);

/// A text or number of row 0 of `stats`.
QVariant stats_head(const reader& store, const QString& column);

}  // namespace verdane::testing
