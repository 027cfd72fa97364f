#pragma once

#include "store/recordset_settings.h"
#include "store/tables/declaration.h"

/// `games`: the strokes of a round, one row for each round.
///
/// A new row contains nothing but its key. The strokes of a hole are Null until the hole is stored, and their
/// readers test for Null. The other counts are read without a test and start at 0.
namespace verdane::tables::games {

inline constexpr column_list columns{
    round_key(u"date"),
    text({u"field", u"CODEF"}),
    count({u"long_", u"approach_", u"putt_"}).by_hole(),
    unused({u"games_spare_a"}).numbered(6),
    count({u"pen_rule_", u"pen_water_", u"pen_bounds_", u"pen_lost_"}).by_hole().from_zero(),
    unused({u"games_spare_b"}).numbered(18),
    count({u"missed_"}).by_hole().from_zero(),
};

inline constexpr table_declaration table{
    .name = u"games", .columns = columns.groups, .index = {u"games_by_date", {u"date"}}};

inline constexpr recordset_declaration rsgames{
    .name = u"rsgames", .source = u"select *  from games order by date", .cursor = cursor_type::dynamic};
/// The statement that is in force after a run of a statistic has set another one.
inline constexpr QStringView source_after_run = u"Select * from games";

inline constexpr int date = columns.ordinal(u"date");
/// The name of the course.
inline constexpr int field = columns.ordinal(u"field");
/// The code of the course.
inline constexpr int CODEF = columns.ordinal(u"CODEF");
inline constexpr column_run long_h = columns.run(u"long_");
inline constexpr column_run approach_h = columns.run(u"approach_");
inline constexpr column_run putt_h = columns.run(u"putt_");
inline constexpr column_run pen_rule_h = columns.run(u"pen_rule_");
inline constexpr column_run pen_water_h = columns.run(u"pen_water_");
inline constexpr column_run pen_bounds_h = columns.run(u"pen_bounds_");
inline constexpr column_run pen_lost_h = columns.run(u"pen_lost_");
inline constexpr column_run missed_h = columns.run(u"missed_");

static_assert(putt_h(hole_count) == 56 && pen_lost_h(hole_count) == 134 && missed_h(hole_count) == 170);

}  // namespace verdane::tables::games
