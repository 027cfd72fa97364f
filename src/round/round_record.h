#pragma once

#include <QString>
#include <QStringList>

#include <vector>

#include "base/counts.h"

namespace verdane {

/// A course and tee in the list of courses.
struct listed_course {
    QString name;
    /// The last character is the code of the tee.
    QString code;
};

/// A partner in the list of partners.
struct partner_line {
    QString text;
    /// The partner's number, as it is stored with the round.
    QString number;
    /// The partner is one of the round on the current row of `rsgames2`.
    bool selected = false;
};

/// What is stored for a round as a whole.
struct round_header {
    int weather = 0;
    int temperature = 0;
    QString course_name;
    /// The sum of the twelve amounts.
    QString costs;
};

/// The rows of the round in the round window: the current rows of `rsgames`, `rsgames2` and `rscost`, and of
/// `rsvrd_fields` and `rsfield_info` for its course.
namespace round_record {

/// True when there is a course. The recordset of the courses is closed, also afterwards.
bool any_course();

/// Opens `rsgames` and `rsfield_info` for a round that is not opened or added from the list of rounds. That
/// list has them open.
void open_games_and_field_info();

/// Opens `rsgames2` and `rscost` and adds a row to each table of rounds, without a key. Nothing is committed.
/// Then opens `rsvrd_fields`. `rsgames` is open.
void add_rows_without_key();

/// Opens `rsgames2`, `rsvrd_fields` and `rscost` and finds the round of that key in all tables. A round
/// without costs gets a row, which is not committed. `rsgames` is open.
void open_rows(const QString& key);

/// True when `games2` has a row of the round.
bool has_row_in_games2();
/// True as long as the round has no key.
bool key_is_missing();
/// Writes the key into the three rows, which are not committed.
void set_key(const QString& key);

/// Finds the round of that key in `rsgames` and the holes of its course, and returns the code of the course.
QString find_holes_of_round(const QString& key);
void move_to_first_course();
void find_course(const QString& code);
/// Moves to the course with that index in the list, and to its holes.
void move_to_course_and_holes(int course_index);

/// Finds the row of costs of that key, or commits a new one, which is the current row then.
void find_or_store_costs(const QString& key);
/// What the current rows have. Fails with `overflow` when the sum of the costs exceeds 16 bits.
round_header header();
/// The sum of the twelve amounts. Fails with `overflow` beyond 16 bits.
QString cost_total();

/// Writes the numbers of the partners.
void store_partners(const QStringList& numbers);

/// What the user has selected for the round as a whole: course and weather as their index in the lists,
/// temperature in degrees Celsius.
struct round_parameters {
    int course_index;
    int weather_index;
    int temperature;
};

/// Moves to the course of that index, writes course, weather and temperature, appends the key to
/// `round_keys`, then commits the rows of `games2` and `games`. Fails with `subscript`, before the commits,
/// when that list is full.
void store_round_header(const round_parameters& parameters);

/// `store_round_header`, then commits the three rows, finds them again, and adds the row of costs if there is
/// none. All of this is one commit: if the process is killed, the store has all rows of the round or none,
/// and the old figures of a hole or the new ones.
void store_and_commit(const QString& key, const round_parameters& parameters);

/// Moves through the rows of `rsvrd_fields` to its end and returns one line for each.
std::vector<listed_course> walk_courses();
/// Opens `rspartners`, moves through its rows to its end and returns one line for each.
std::vector<partner_line> open_and_walk_partners();

/// Drops what is not committed in the three rows.
void drop_changes();
/// Commits the row of `games2` and closes the tables of the round.
void close_tables();

}  // namespace round_record

}  // namespace verdane
