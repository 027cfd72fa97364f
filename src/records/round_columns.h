#pragma once

/// Where the figures of hole h (1 to 18) stand in the wide rows, by ordinal. The order of the columns
/// is part of the format, so are the gaps in it.
namespace verdane::round_columns {

constexpr int hole_count = 18;

/// Every table of a round carries its key here.
constexpr int date = 0;

// Table `games`.
constexpr int field = 1;
constexpr int codef = 2;

constexpr int long_h(int h)
{
    return h * 3;
}
constexpr int approach_h(int h)
{
    return h * 3 + 1;
}
constexpr int putt_h(int h)
{
    return h * 3 + 2;
}
constexpr int pen_rule_h(int h)
{
    return (h - 1) * 4 + 63;
}
constexpr int pen_water_h(int h)
{
    return (h - 1) * 4 + 64;
}
constexpr int pen_bounds_h(int h)
{
    return (h - 1) * 4 + 65;
}
constexpr int pen_lost_h(int h)
{
    return (h - 1) * 4 + 66;
}
constexpr int missed_h(int h)
{
    return h + 152;
}

// Table `games2`.
constexpr int conditionM = 1;
constexpr int partners = 2;
constexpr int temperature = 201;
constexpr int fc = 202;
constexpr int putts_kept = 6;

constexpr int sand_h(int h)
{
    return h + 2;
}
constexpr int recovery_h(int h)
{
    return h + 20;
}
constexpr int fairway_h(int h)
{
    return h + 74;
}
/// Length in feet of putt `putt` (1 to 6) of hole h.
constexpr int putt_len(int h, int putt)
{
    return 6 * (h - 1) + 93 + putt - 1;
}

// Table `cost`: twelve amounts.
constexpr int first_amount = 1;
constexpr int last_amount = 12;

// Table `field_info`.
constexpr int yards_h(int h)
{
    return h;
}
constexpr int hcp_h(int h)
{
    return h + 18;
}
constexpr int par_h(int h)
{
    return h + 37;
}

// Table `vrd_fields`.
constexpr int code = 0;
constexpr int name = 1;
constexpr int rating = 8;
constexpr int slope = 9;

static_assert(long_h(18) == 54 && putt_h(18) == 56 && pen_lost_h(18) == 134 && missed_h(18) == 170);
static_assert(sand_h(18) == 20 && recovery_h(18) == 38 && fairway_h(18) == 92);
static_assert(putt_len(18, putts_kept) == temperature - 1);
static_assert(yards_h(18) == 18 && hcp_h(18) == 36 && par_h(18) == 55);

}  // namespace verdane::round_columns
