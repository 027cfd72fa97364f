#pragma once

#include "store/recordset_settings.h"
#include "store/tables/declaration.h"

/// `s_put1` and `s_put2`: the putts of a selection by the bands of their lengths.
namespace verdane::tables::s_put1 {

/// Row k, from 1, counts the holes finished in k putts by the band of the first putt. The means are in the
/// last row, the texts and the number of rounds in the first.
inline constexpr column_list columns{
    unused({u"put_line"}).filled_with(fixed_value::row_from_one),
    count({u"band_"}).numbered(putt_band_count),
    unused({u"put_spare_"}).numbered(3),
    text({u"from_date", u"to_date"}),
    text({u"mean_band_"}).numbered(putt_band_count).filled_with(fixed_value::blank),
    text({u"mean_all"}).filled_with(fixed_value::blank),
    text({u"axis_first", u"axis_after", u"weather_text", u"partner_text", u"course_text"}),
    count({u"round_count"}),
};

inline constexpr table_declaration table{
    .name = u"s_put1", .columns = columns.groups, .fixed_rows = most_putts_counted};

inline constexpr recordset_declaration rss_put1{.name = u"rss_put1",
                                                .source = u"select * from s_put1",
                                                .lock = lock_type::batch_optimistic,
                                                .location = cursor_location::client,
                                                .cache_rows = 400};

inline constexpr column_run band_j = columns.run(u"band_");
inline constexpr int from_date = columns.ordinal(u"from_date");
inline constexpr int to_date = columns.ordinal(u"to_date");
inline constexpr column_run mean_band_j = columns.run(u"mean_band_");
inline constexpr int mean_all = columns.ordinal(u"mean_all");
inline constexpr int axis_first = columns.ordinal(u"axis_first");
inline constexpr int axis_after = columns.ordinal(u"axis_after");
inline constexpr int weather_text = columns.ordinal(u"weather_text");
inline constexpr int partner_text = columns.ordinal(u"partner_text");
inline constexpr int course_text = columns.ordinal(u"course_text");
inline constexpr int round_count = columns.ordinal(u"round_count");

static_assert(mean_all == 20 && round_count == 26);

}  // namespace verdane::tables::s_put1

namespace verdane::tables::s_put2 {

/// Row i, from 1, counts the putts from band i by the band in which they left the ball. The score and the
/// rating are in the last row, the captions in the first.
inline constexpr column_list columns{
    unused({u"put_line"}).filled_with(fixed_value::row_from_one),
    count({u"band_"}).numbered(putt_band_count),
    unused({u"put_spare_"}).numbered(3),
    text({u"weighted_mean", u"rating_text"}).filled_with(fixed_value::blank),
    text({u"axis_after2", u"axis_first2"}),
};

inline constexpr table_declaration table{
    .name = u"s_put2", .columns = columns.groups, .fixed_rows = putt_band_count};

inline constexpr recordset_declaration rss_put2{.name = u"rss_put2",
                                                .source = u"select * from s_put2",
                                                .lock = lock_type::batch_optimistic,
                                                .location = cursor_location::client,
                                                .cache_rows = 400};

inline constexpr column_run band_j = columns.run(u"band_");
inline constexpr int weighted_mean = columns.ordinal(u"weighted_mean");
inline constexpr int rating_text = columns.ordinal(u"rating_text");
inline constexpr int axis_after2 = columns.ordinal(u"axis_after2");
inline constexpr int axis_first2 = columns.ordinal(u"axis_first2");

static_assert(weighted_mean == 11 && axis_first2 == 14);

}  // namespace verdane::tables::s_put2
