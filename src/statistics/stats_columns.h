#pragma once

/// Ordinals and rows, both from 0, of the report table `stats`.
namespace verdane::stats_columns {

constexpr int hole_h(int h)
{
    return h;
}
constexpr int course_text = 20;
constexpr int weather_text = 21;
constexpr int from_text = 22;
constexpr int to_text = 23;
constexpr int partner_text = 24;
constexpr int average_mark = 26;
constexpr int front_nine = 27;
constexpr int back_nine = 28;
constexpr int all_holes = 29;
constexpr int handicap_text = 30;
constexpr int round_count = 31;

constexpr int water_row = 4;
constexpr int penalties_row = 8;
constexpr int over_row = 9;
constexpr int classes_row = 10;
constexpr int average_par_3_row = 24;
constexpr int average_par_5_row = 26;

}  // namespace verdane::stats_columns
