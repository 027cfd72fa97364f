#pragma once

#include "store/recordset_settings.h"
#include "store/tables/declaration.h"

/// `stats`: the round statistics, one row for each figure.
namespace verdane::tables::stats {

/// The rows, from 0.
namespace row {

enum row {
    strokes,
    fairway,
    sand,
    missed,
    water,
    lost,
    rules,
    bounds,
    penalties,
    over_par,
    pars,
    regulation,
    one_putt_in_regulation,
    two_putts_in_regulation,
    more_putts_in_regulation,
    not_in_regulation,
    one_putt_not_in_regulation,
    two_putts_not_in_regulation,
    more_putts_not_in_regulation,
    up_and_down,
    chip_in,
    pars_on_par_3,
    pars_on_par_4,
    pars_on_par_5,
    average_par_3,
    average_par_4,
    average_par_5,
    hole_in_one,
    double_eagle,
    eagle,
    birdie,
    bogey,
    double_bogey,
    triple_or_more,
    count
};

}  // namespace row

/// The texts and the number of rounds are written to the first row only.
inline constexpr column_list columns{
    unused({u"stat_line"}).filled_with(fixed_value::row_from_zero),
    real({u"hole_"}).by_hole(),
    unused({u"stats_spare_a"}),
    text({u"course_text", u"weather_text", u"from_text", u"to_text", u"partner_text"}),
    unused({u"stats_spare_b"}),
    text({u"average_mark"}).filled_with(fixed_value::blank),
    real({u"front_nine", u"back_nine", u"all_holes"}),
    text({u"handicap_text"}),
    count({u"round_count"}),
};

inline constexpr table_declaration table{
    .name = u"stats", .columns = columns.groups, .fixed_rows = row::count};

inline constexpr recordset_declaration rsstats{.name = u"rsstats",
                                               .source = u"select * from stats",
                                               .location = cursor_location::client,
                                               .cache_rows = 400};

inline constexpr column_run hole_h = columns.run(u"hole_");
inline constexpr int course_text = columns.ordinal(u"course_text");
inline constexpr int weather_text = columns.ordinal(u"weather_text");
inline constexpr int from_text = columns.ordinal(u"from_text");
inline constexpr int to_text = columns.ordinal(u"to_text");
inline constexpr int partner_text = columns.ordinal(u"partner_text");
/// "0" if the figures are of several rounds, else one blank.
inline constexpr int average_mark = columns.ordinal(u"average_mark");
inline constexpr int front_nine = columns.ordinal(u"front_nine");
inline constexpr int back_nine = columns.ordinal(u"back_nine");
inline constexpr int all_holes = columns.ordinal(u"all_holes");
inline constexpr int handicap_text = columns.ordinal(u"handicap_text");
inline constexpr int round_count = columns.ordinal(u"round_count");

static_assert(row::count == 34 && row::penalties == 8 && row::average_par_5 == 26);
static_assert(hole_h(1) == 1 && average_mark == 26 && round_count == 31);

}  // namespace verdane::tables::stats
