#include "store/recovery/counted_rows.h"

#include "store/row_insertion.h"
#include "store/tables/games.h"
#include "store/tables/games2.h"

namespace verdane {

namespace games = tables::games;
namespace games2 = tables::games2;

row_of_round::row_of_round(const tables::table_declaration& declaration)
    : table_(*find_table(declaration.name)), values_(new_row(table_))
{
}

void set_strokes(row_of_round& row, int hole, const hole_summary& counted)
{
    row.set(games::long_h(hole), counted.counts.long_shots);
    row.set(games::approach_h(hole), counted.counts.approach);
    row.set(games::putt_h(hole), counted.counts.putts);
    row.set(games::pen_water_h(hole), counted.counts.pen_water);
    row.set(games::pen_lost_h(hole), counted.counts.pen_lost);
    row.set(games::pen_rule_h(hole), counted.counts.pen_rule);
    row.set(games::pen_bounds_h(hole), counted.counts.pen_bounds);
    row.set(games::missed_h(hole), counted.counts.missed);
}

void set_situation(row_of_round& row, int hole, const hole_summary& counted)
{
    row.set(games2::sand_h(hole), counted.counts.sand);
    row.set(games2::recovery_h(hole), counted.counts.recovery);
    row.set(games2::fairway_h(hole), counted.counts.fairway);
    int number = 0;
    for (const int16 length : counted.putt_lengths)
        row.set(games2::putt_len(hole, ++number), length);
}

}  // namespace verdane
