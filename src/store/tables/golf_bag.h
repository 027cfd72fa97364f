#pragma once

#include "store/recordset_settings.h"
#include "store/tables/declaration.h"

/// `sticks` and `sticknames`: the averages and the names of the clubs. The program uses the last row of
/// `sticks`.
namespace verdane::tables::sticks {

inline constexpr column_list columns{
    real({u"avg_"}).by_club(),
    unused({u"sticks_spare_"}).numbered(59),
    count({u"shots_"}).by_club(),
};

inline constexpr table_declaration table{.name = u"sticks", .columns = columns.groups, .fixed_rows = 1};

inline constexpr recordset_declaration rssticks{.name = u"rssticks",
                                                .source = u"select * from sticks",
                                                .location = cursor_location::client,
                                                .cache_rows = 400};

/// The average distance of a club, and the number of shots that it was computed from; clubs count from 1.
inline constexpr column_run avg = columns.run(u"avg_");
inline constexpr column_run shots = columns.run(u"shots_");

static_assert(avg(1) == 0 && shots(club_count) == 86);

}  // namespace verdane::tables::sticks

namespace verdane::tables::sticknames {

inline constexpr column_list columns{text({u"club_"}).by_club().filled_with(fixed_value::name_of_club)};

inline constexpr table_declaration table{.name = u"sticknames", .columns = columns.groups, .fixed_rows = 1};

inline constexpr recordset_declaration rssticknames{.name = u"rssticknames",
                                                    .source = u"select * from sticknames"};

/// Clubs count from 1.
inline constexpr column_run club = columns.run(u"club_");

/// The names of the clubs in a new store: woods, irons and wedges as both languages abbreviate them, and the
/// putter.
inline constexpr std::array<std::u16string_view, club_count> new_names{
    u"1W", u"3W", u"5W", u"3I", u"4I", u"5I", u"6I", u"7I", u"8I", u"9I", u"PW", u"SW", u"LW", u"Pu"};

static_assert(club(1) == 0 && club(club_count) == 13);

}  // namespace verdane::tables::sticknames
