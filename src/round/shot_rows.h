#pragma once

#include <QString>

#include <functional>

#include "scoring/hole_shots.h"

/// Where the shots of the hole live: the rows of `rsStat_rounds`.
namespace verdane::shot_rows {

/// The columns, by ordinal.
constexpr int date = 0;
constexpr int hole = 1;
constexpr int before = 2;
constexpr int after = 3;
constexpr int shot_type = 4;
constexpr int stick = 5;
constexpr int missed = 7;
constexpr int ts = 8;
constexpr int dz = 9;
constexpr int faireway = 10;
constexpr int penality = 11;
constexpr int shot = 12;
constexpr int stickval = 13;
constexpr int fairval = 14;
constexpr int penval = 15;
constexpr int shot_type_value = 16;
constexpr int cal = 17;
constexpr int normal = 18;
constexpr int addpen = 19;
constexpr int unit = 20;
constexpr int verges = 21;

/// The statement that reads the shots of a hole (1 to 18).
QString statement_of_hole(const QString& key, int16 hole_number);

/// False while the recordset stands for the whole table, in whatever order: the removal of a round leaves
/// it sorted by round and hole.
bool a_hole_is_loaded();

/// True when the rows are those of that hole.
bool is_loaded(const QString& key, int16 hole_number);

/// There is a row to read and write.
bool on_a_row();

/// The rows as they stand, the current row staying the current one.
shot_list read();

/// Writes what changed and commits it; the current row stays the current one. `shots` has one entry for
/// each row. `written` is told the place of each row, from 0, before the row is committed.
void write(const shot_list& shots, const std::function<void(int)>& written = {});

}  // namespace verdane::shot_rows
