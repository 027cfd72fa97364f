#pragma once

#include <QString>

#include <array>
#include <vector>

#include "tests/support/reader.h"
#include "tests/support/scorecards.h"

/// A golfer's diary, written into a store from outside: courses, partners, rounds and shots.
namespace verdane::testing {

/// What one hole of a stored round holds.
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
eighteen holes_over(const std::array<int, 18>& pars, int over);

/// The same figures on all holes.
eighteen same_holes(const hole_entry& hole);

struct diary_course {
    QString code;
    QString name;
    QString rating;
    QString slope;
    std::array<int, 18> pars{};
    std::array<int, 18> yards{};
    std::array<int, 18> stroke_index{};
};

/// A published course, under the code it would have in the store.
diary_course course_of(const QString& name, const QString& tee);

/// A course with the same par on every hole; hole h is 300 + h yards long and has the index h.
diary_course flat_course(const QString& code, int par, const QString& rating, const QString& slope);

struct diary_round {
    QString key;
    diary_course course;
    eighteen holes;
    int weather = 0;
    QString partners;
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

class diary {
public:
    explicit diary(const QString& path) : store(path) {}
    explicit diary(const reader& open_store) : store(open_store) {}

    void add(const diary_course& course) const;
    /// The round's rows of `games` and `games2`.
    void add(const diary_round& round) const;
    void add(const std::vector<diary_round>& rounds) const;
    void add(const diary_shot& shot) const;
    void add_partner(const QString& surname, const QString& name, int code) const;

    reader store;
};

/// The hole columns of a row of `stats` (rows from 0), front and back nine, all holes: 21 numbers.
std::vector<double> stats_row(const reader& store, int row);

/// A text or number of row 0 of `stats`.
QVariant stats_head(const reader& store, const QString& column);

}  // namespace verdane::testing
