#include "records/Round_functions.h"

#include "base/failure_subject.h"
#include "base/numbers.h"
#include "scoring/hole_classes.h"
#include "scoring/limits.h"
#include "store/DataEnvironment1.h"
#include "store/tables/courses.h"

namespace verdane::Round_functions {

namespace {

stroke_counts strokes_of(int16 hole, const figure_source& source)
{
    if (source)
        return static_cast<const stroke_counts&>(*source);
    return read_strokes(hole);
}

penalty_counts penalties_of(int16 hole, const figure_source& source)
{
    if (source)
        return static_cast<const penalty_counts&>(*source);
    return read_penalties(hole);
}

void add_holes(round_totals& totals, const figure_source& last_hole)
{
    for (int16 hole = 1; hole <= hole_count; ++hole) {
        const int16 gross = hole < hole_count ? hole_gross(hole, from_row) : hole_gross(hole, last_hole);
        concerning([&hole] { return failure_subject{.hole = plain(hole)}; },
                   [&] { totals.add_hole(gross, hole_par(hole)); });
    }
}

}  // namespace

hole_figures figures_from_source(int16 hole, const figure_source& source)
{
    return source ? *source : figures_from_row(hole);
}

int16 hole_long(int16 hole, const figure_source& source)
{
    return strokes_of(hole, source).long_shots;
}

int16 hole_approach(int16 hole, const figure_source& source)
{
    return strokes_of(hole, source).approach;
}

int16 hole_putts(int16 hole, const figure_source& source)
{
    return strokes_of(hole, source).putts;
}

int16 hole_pen_rule(int16 hole, const figure_source& source)
{
    return penalties_of(hole, source).pen_rule;
}

int16 hole_pen_water(int16 hole, const figure_source& source)
{
    return penalties_of(hole, source).pen_water;
}

int16 hole_pen_bounds(int16 hole, const figure_source& source)
{
    return penalties_of(hole, source).pen_bounds;
}

int16 hole_pen_lost(int16 hole, const figure_source& source)
{
    return penalties_of(hole, source).pen_lost;
}

int16 hole_penalties(int16 hole, const figure_source& source)
{
    return verdane::hole_penalties(figures_from_source(hole, source));
}

int16 hole_gross(int16 hole, const figure_source& source)
{
    return verdane::hole_gross(figures_from_source(hole, source));
}

int in_regulation(int16 hole, const figure_source& source)
{
    return verdane::in_regulation(figures_from_source(hole, source), hole_par(hole));
}

bool not_in_regulation(int16 hole, const figure_source& source)
{
    return verdane::not_in_regulation(figures_from_source(hole, source), hole_par(hole));
}

QString hole_cell(int selector, int16 hole, const figure_source& source)
{
    return verdane::hole_cell(selector, figures_from_source(hole, source), hole_par(hole));
}

round_figures round_score(const figure_source& last_hole)
{
    Recordset& course = data_environment().rsvrd_fields;
    const double rating = course.Fields(tables::vrd_fields::rating).double_or_zero();
    const double slope = course.Fields(tables::vrd_fields::slope).double_or_zero();
    round_figures result;
    add_holes(result.totals, last_hole);
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
