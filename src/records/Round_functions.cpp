#include "records/Round_functions.h"

#include "base/numbers.h"
#include "records/round_columns.h"
#include "scoring/hole_classes.h"
#include "store/DataEnvironment1.h"

namespace verdane::Round_functions {

namespace {

strokes strokes_of(int16 hole, bool from_row)
{
    if (from_row)
        return read_strokes(hole);
    const hole_figures f = figures_from_boxes();
    return {f.long_shots, f.approach, f.putts};
}

penalties penalties_of(int16 hole, bool from_row)
{
    if (from_row)
        return read_penalties(hole);
    const hole_figures f = figures_from_boxes();
    return {f.pen_rule, f.pen_water, f.pen_bounds, f.pen_lost};
}

void add_holes(round_totals& totals, bool last_hole_from_row)
{
    for (int h = 1; h <= round_columns::hole_count; ++h) {
        const int16 hole = static_cast<std::int16_t>(h);
        const bool from_row = h < round_columns::hole_count || last_hole_from_row;
        totals.add_hole(hole_gross(hole, from_row), hole_par(hole));
    }
}

}  // namespace

hole_figures figures_of(int16 hole, bool from_row)
{
    return from_row ? figures_from_row(hole) : figures_from_boxes();
}

int16 hole_long(int16 hole, bool from_row)
{
    return strokes_of(hole, from_row).long_shots;
}

int16 hole_approach(int16 hole, bool from_row)
{
    return strokes_of(hole, from_row).approach;
}

int16 hole_putts(int16 hole, bool from_row)
{
    return strokes_of(hole, from_row).putts;
}

int16 hole_pen_rule(int16 hole, bool from_row)
{
    return penalties_of(hole, from_row).rule;
}

int16 hole_pen_water(int16 hole, bool from_row)
{
    return penalties_of(hole, from_row).water;
}

int16 hole_pen_bounds(int16 hole, bool from_row)
{
    return penalties_of(hole, from_row).bounds;
}

int16 hole_pen_lost(int16 hole, bool from_row)
{
    return penalties_of(hole, from_row).lost;
}

int16 hole_penalties(int16 hole, bool from_row)
{
    return verdane::hole_penalties(figures_of(hole, from_row));
}

int16 hole_gross(int16 hole, bool from_row)
{
    return verdane::hole_gross(figures_of(hole, from_row));
}

int in_regulation(int16 hole, bool from_row)
{
    return verdane::in_regulation(figures_of(hole, from_row), hole_par(hole));
}

bool not_in_regulation(int16 hole, bool from_row)
{
    return verdane::not_in_regulation(figures_of(hole, from_row), hole_par(hole));
}

QString hole_cell(int selector, int16 hole, bool from_row)
{
    return verdane::hole_cell(selector, figures_of(hole, from_row), hole_par(hole));
}

round_figures round_score(bool last_hole_from_row)
{
    Recordset& course = data_environment().rsvrd_fields;
    const double rating = course.Fields(round_columns::rating).double_or_zero();
    const double slope = course.Fields(round_columns::slope).double_or_zero();
    round_figures result;
    add_holes(result.totals, last_hole_from_row);
    result.differential = differential(result.totals.gross, rating, slope);
    return result;
}

round_labels labels_of(const round_figures& figures)
{
    const round_totals& totals = figures.totals;
    return {differential_text(figures.differential), QString::number(plain(totals.gross)),
            number_text(net_score(totals.gross, figures.differential)),
            QString::number(plain(totals.over_par()))};
}

}  // namespace verdane::Round_functions
