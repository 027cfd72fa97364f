#pragma once

#include "store/recordset_settings.h"
#include "store/tables/declaration.h"

/// `games2`: the situation of a round, one row for each round. All counts of a new row are 0.
namespace verdane::tables::games2 {

inline constexpr column_list columns{
    round_key(u"date"),
    count({u"conditionM"}).from_zero(),
    text({u"PARTNERS"}),
    count({u"sand_"}).by_hole().from_zero(),
    count({u"recovery_"}).by_hole().from_zero(),
    unused({u"games2_spare_"}).numbered(36),
    count({u"fairway_"}).by_hole().from_zero(),
    count({u"putt_len_"}).by_hole().in_parts(putt_lengths_kept).from_zero(),
    amount({u"temperature"}).from_zero(),
    text({u"FC"}),
};

inline constexpr table_declaration table{
    .name = u"games2", .columns = columns.groups, .index = {u"games2_by_date", {u"date"}}};

inline constexpr recordset_declaration rsgames2{.name = u"rsgames2",
                                                .source = u"select * from games2 order by date"};
/// The statement that is in force after a run of a statistic has set another one.
inline constexpr QStringView source_after_run = u"select * from games2";

inline constexpr int date = columns.ordinal(u"date");
/// The weather, an index of `weather_words`.
inline constexpr int conditionM = columns.ordinal(u"conditionM");
/// The number of each partner followed by "-".
inline constexpr int PARTNERS = columns.ordinal(u"PARTNERS");
inline constexpr column_run sand_h = columns.run(u"sand_");
inline constexpr column_run recovery_h = columns.run(u"recovery_");
inline constexpr column_run fairway_h = columns.run(u"fairway_");
/// `putt_len(h, putt)`: the length in feet of putt 1 to `putt_lengths_kept` of hole h.
inline constexpr column_run putt_len = columns.run(u"putt_len_");
/// Degrees Celsius.
inline constexpr int temperature = columns.ordinal(u"temperature");
/// The code of the course.
inline constexpr int FC = columns.ordinal(u"FC");

static_assert(recovery_h(hole_count) == 38 && fairway_h(hole_count) == 92);
static_assert(putt_len(hole_count, putt_lengths_kept) == 200 && FC == 202);

}  // namespace verdane::tables::games2
