#include "scoring/round_lines.h"

#include "base/numbers.h"
#include "scoring/limits.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

struct nines {
    tally front;
    tally back;

    int16 both() const { return front.sum + back.sum; }
};

nines nines_of(const by_hole<tally>& sums)
{
    nines result;
    for (int h = 1; h <= hole_count; ++h)
        (h <= last_front_hole ? result.front : result.back).add(sums[h].sum);
    return result;
}

by_hole<double> as_decimals(const by_hole<tally>& sums)
{
    by_hole<double> values;
    for (int h = 1; h <= hole_count; ++h)
        values[h] = plain(sums[h].sum);
    return values;
}

double mean_or_zero(int16 strokes, int16 count)
{
    return count < 1 ? 0 : static_cast<double>(plain(strokes)) / plain(count);
}

bool several_rounds(const round_sums& sums)
{
    return sums.rounds > 1;
}

}  // namespace

stats_line line_of(const by_hole<tally>& sums)
{
    stats_line line;
    line.holes = as_decimals(sums);
    const nines halves = nines_of(sums);
    line.front_nine = plain(halves.front.sum);
    line.back_nine = plain(halves.back.sum);
    line.all_holes = plain(halves.both());
    return line;
}

stats_line strokes_line(const round_sums& sums)
{
    stats_line line = line_of(sums.strokes);
    if (several_rounds(sums))
        line.all_holes /= plain(sums.rounds);
    return line;
}

stats_line over_line(const round_sums& sums)
{
    by_hole<double> means;
    if (sums.rounds > 0) {
        for (int h = 1; h <= hole_count; ++h)
            means[h] = sums.over[h] / plain(sums.rounds);
    }
    return totalled(means);
}

stats_line average_line(const round_sums& sums, int par)
{
    const by_hole<tally>& strokes = sums.classes[place_of_average(par)];
    const by_hole<tally>& counts = sums.averaged[par];
    stats_line line;
    for (int h = 1; h <= hole_count; ++h)
        line.holes[h] = round_half_even(mean_or_zero(strokes[h].sum, counts[h].sum));
    const nines played = nines_of(counts);
    const nines taken = nines_of(strokes);
    line.front_nine = mean_or_zero(taken.front.sum, played.front.sum);
    line.back_nine = mean_or_zero(taken.back.sum, played.back.sum);
    line.all_holes = mean_or_zero(taken.both(), played.both());
    return line;
}

by_hole<double> class_holes(const round_sums& sums, int place)
{
    for (int par = lowest_par; par <= highest_par; ++par) {
        if (place == place_of_average(par))
            return average_line(sums, par).holes;
    }
    return as_decimals(sums.classes[place]);
}

stats_line totalled(const by_hole<double>& holes)
{
    stats_line line;
    line.holes = holes;
    for (int h = 1; h <= hole_count; ++h)
        (h <= last_front_hole ? line.front_nine : line.back_nine) += holes[h];
    line.all_holes = line.front_nine + line.back_nine;
    return line;
}

QString average_mark(const round_sums& sums)
{
    return several_rounds(sums) ? u"0"_s : u" "_s;
}

std::array<double, 9> detail_figures(const detailed_hole& hole)
{
    const double penalties = hole.water + hole.lost + hole.rules + hole.bounds;
    return {hole.fairway, hole.sand, hole.missed,
            hole.water,   hole.lost, hole.rules,
            hole.bounds,  penalties, hole.shots + hole.added_penalties - hole.par};
}

}  // namespace verdane
