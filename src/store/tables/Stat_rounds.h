#pragma once

#include "store/recordset_settings.h"
#include "store/tables/declaration.h"

/// `Stat_rounds`: one row for each shot of a hole that was entered shot by shot.
///
/// Of each pair of a text and a code (`stick` and `stickval`) the statistics use the code. A code of 0 means
/// "not chosen yet" or "none".
namespace verdane::tables::Stat_rounds {

inline constexpr column_list columns{
    round_key(u"date"),
    count({u"hole", u"before", u"after"}),
    text({u"shot_type", u"stick"}),
    yes_no({u"beyong_hole", u"missed", u"ts", u"dz"}).from_zero(),
    text({u"faireway", u"penality"}),
    count({u"shot"}),
    count({u"stickval", u"fairval", u"penval", u"shot_type_value"}).from_zero(),
    yes_no({u"cal"}).from_zero(),
    count({u"normal"}),
    count({u"addpen"}).from_zero(),
    text({u"unit"}),
    count({u"verges"}),
};

/// Windows and statistics read the shots of one hole in order.
inline constexpr table_declaration table{.name = u"Stat_rounds",
                                         .columns = columns.groups,
                                         .index = {u"shots_by_hole", {u"date", u"hole", u"shot"}}};

inline constexpr recordset_declaration rsStat_rounds{.name = u"rsStat_rounds",
                                                     .source = u"select * from Stat_rounds"};
inline constexpr recordset_declaration rsbuffer{.name = u"rsbuffer", .source = u"select * from stat_rounds"};
/// The statement with which shots are deleted. It stays in force.
inline constexpr QStringView source_of_removal = u"select * from Stat_rounds order by date,hole";

inline constexpr int date = columns.ordinal(u"date");
inline constexpr int hole = columns.ordinal(u"hole");
/// The distance to the hole before and after the shot.
inline constexpr int before = columns.ordinal(u"before");
inline constexpr int after = columns.ordinal(u"after");
inline constexpr int shot_type = columns.ordinal(u"shot_type");
inline constexpr int stick = columns.ordinal(u"stick");
inline constexpr int beyong_hole = columns.ordinal(u"beyong_hole");
inline constexpr int missed = columns.ordinal(u"missed");
/// From a sand trap.
inline constexpr int ts = columns.ordinal(u"ts");
/// Gained no distance.
inline constexpr int dz = columns.ordinal(u"dz");
inline constexpr int faireway = columns.ordinal(u"faireway");
inline constexpr int penality = columns.ordinal(u"penality");
/// The number of the shot within the hole.
inline constexpr int shot = columns.ordinal(u"shot");
inline constexpr int stickval = columns.ordinal(u"stickval");
inline constexpr int fairval = columns.ordinal(u"fairval");
inline constexpr int penval = columns.ordinal(u"penval");
inline constexpr int shot_type_value = columns.ordinal(u"shot_type_value");
/// Holed from off the green.
inline constexpr int cal = columns.ordinal(u"cal");
/// The par of the hole.
inline constexpr int normal = columns.ordinal(u"normal");
/// Penalty strokes.
inline constexpr int addpen = columns.ordinal(u"addpen");
/// The unit of `after`.
inline constexpr int unit = columns.ordinal(u"unit");
/// The length of the hole in yards.
inline constexpr int verges = columns.ordinal(u"verges");

static_assert(shot_type_value == 16 && verges == 21);

}  // namespace verdane::tables::Stat_rounds
