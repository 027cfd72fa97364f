#include "scoring/round_sums.h"

#include "base/failure_subject.h"
#include "scoring/limits.h"

namespace verdane {

void round_sums::add_hole(int h, const played_hole& hole)
{
    concerning([h] { return failure_subject{.hole = h}; }, [&] { add_figures(h, hole); });
}

void round_sums::add_figures(int h, const played_hole& hole)
{
    const int16 gross = hole_gross(hole);
    strokes[h].add(gross);
    water[h].add(hole.pen_water);
    lost[h].add(hole.pen_lost);
    rule[h].add(hole.pen_rule);
    bounds[h].add(hole.pen_bounds);
    sand[h].add(hole.sand);
    missed[h].add(hole.missed);
    fairway[h].add(hole.fairway);
    penalties[h] = water[h];
    for (const tally& part : {lost[h], rule[h], bounds[h]})
        penalties[h].add(part.sum);
    over[h] += plain(gross) - plain(hole.par);
    add_classes(h, hole);
}

void round_sums::add_classes(int h, const played_hole& hole)
{
    for (int i = 1; i <= class_count; ++i)
        classes[i][h].add(hole_cell_value(summary_selector(i), hole, hole.par));
    // A hole has one par, so its strokes are in at most one of the three averages.
    for (int par = lowest_par; par <= highest_par; ++par) {
        if (hole_cell_value(summary_selector(place_of_average(par)), hole, hole.par) != 0)
            averaged[par][h].add(1);
    }
}

}  // namespace verdane
