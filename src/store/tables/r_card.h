#pragma once

#include "store/recordset_settings.h"
#include "store/tables/declaration.h"

/// `r_card`: the scorecard. The first row is for holes 1 to 9, the second for holes 10 to 18. The putter has
/// no column.
namespace verdane::tables::r_card {

inline constexpr int clubs_on_card = club_count - 1;

inline constexpr column_list columns{
    unused({u"card_row"}).filled_with(fixed_value::row_from_one),
    count({u"card_yards_"}).numbered(nine_holes),
    count({u"card_hole_"}).numbered(nine_holes),
    count({u"card_hcp_"}).numbered(nine_holes),
    count({u"card_par_"}).numbered(nine_holes),
    text({u"card_name", u"card_slope", u"card_tee", u"card_rating"}),
    unused({u"card_spare"}),
    real({u"card_club_"}).numbered(clubs_on_card),
};

inline constexpr table_declaration table{.name = u"r_card", .columns = columns.groups, .fixed_rows = 2};

inline constexpr recordset_declaration rsr_card{.name = u"rsr_card",
                                                .source = u"select * from r_card",
                                                .location = cursor_location::client,
                                                .cache_rows = 400};

/// The place of a hole in its row counts from 1.
inline constexpr column_run card_yards = columns.run(u"card_yards_");
inline constexpr column_run card_hole = columns.run(u"card_hole_");
inline constexpr column_run card_hcp = columns.run(u"card_hcp_");
inline constexpr column_run card_par = columns.run(u"card_par_");
inline constexpr int card_name = columns.ordinal(u"card_name");
inline constexpr int card_slope = columns.ordinal(u"card_slope");
inline constexpr int card_tee = columns.ordinal(u"card_tee");
inline constexpr int card_rating = columns.ordinal(u"card_rating");
inline constexpr column_run card_club = columns.run(u"card_club_");

static_assert(card_par(nine_holes) == 36 && card_club(clubs_on_card) == 54);

}  // namespace verdane::tables::r_card
