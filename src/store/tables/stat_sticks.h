#pragma once

#include "store/recordset_settings.h"
#include "store/tables/declaration.h"

/// `stat_sticks`: the club statistics, one row for each club. All figures are texts. The texts of the
/// selection and the number of rounds are written to the first row only.
namespace verdane::tables::stat_sticks {

inline constexpr column_list columns{
    text({u"club_name"}).filled_with(fixed_value::name_of_club),
    text({u"shot_count", u"longest", u"average", u"pct_fairway", u"pct_right", u"pct_left", u"pct_missed",
          u"pct_penalty", u"pct_holed"})
        .filled_with(fixed_value::digit_zero),
    unused({u"sticks_spare"}),
    text({u"heading_text", u"from_date", u"to_date", u"course_text", u"partner_text", u"weather_text"}),
    count({u"round_count"}),
};

inline constexpr table_declaration table{
    .name = u"stat_sticks", .columns = columns.groups, .fixed_rows = club_count};

inline constexpr recordset_declaration rsstat_sticks{.name = u"rsstat_sticks",
                                                     .source = u"select * from stat_sticks",
                                                     .location = cursor_location::client,
                                                     .cache_rows = 400};

inline constexpr int club_name = columns.ordinal(u"club_name");
inline constexpr int shot_count = columns.ordinal(u"shot_count");
inline constexpr int longest = columns.ordinal(u"longest");
inline constexpr int average = columns.ordinal(u"average");
inline constexpr int pct_fairway = columns.ordinal(u"pct_fairway");
inline constexpr int pct_right = columns.ordinal(u"pct_right");
inline constexpr int pct_left = columns.ordinal(u"pct_left");
inline constexpr int pct_missed = columns.ordinal(u"pct_missed");
inline constexpr int pct_penalty = columns.ordinal(u"pct_penalty");
inline constexpr int pct_holed = columns.ordinal(u"pct_holed");
inline constexpr int heading_text = columns.ordinal(u"heading_text");
inline constexpr int from_date = columns.ordinal(u"from_date");
inline constexpr int to_date = columns.ordinal(u"to_date");
inline constexpr int course_text = columns.ordinal(u"course_text");
inline constexpr int partner_text = columns.ordinal(u"partner_text");
inline constexpr int weather_text = columns.ordinal(u"weather_text");
inline constexpr int round_count = columns.ordinal(u"round_count");

static_assert(pct_holed == 9 && heading_text == 11 && round_count == 17);

}  // namespace verdane::tables::stat_sticks
