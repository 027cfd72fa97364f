#include "scoring/hole_classes.h"

#include "base/run_time_failure.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

/// A cell before it becomes a text: no text at all, or a figure, which is shown as a blank if it is 0.
struct cell {
    bool empty = false;
    int16 figure = 0;
};

constexpr cell no_cell{true, 0};

cell member_if(bool belongs)
{
    return {false, belongs ? 1 : 0};
}

bool gross_is(const hole_figures& f, int wanted)
{
    const int16 gross = hole_gross(f);
    return gross != 0 && gross == wanted;
}

cell par_made(const hole_figures& f, int par, int wanted_par)
{
    return member_if(par == wanted_par && hole_gross(f) == wanted_par);
}

/// The gross of one hole; it becomes a mean when the statistics add up many holes.
cell average_cell(const hole_figures& f, int par, int wanted_par)
{
    const int16 gross = hole_gross(f);
    return par == wanted_par && gross > 0 ? cell{false, gross} : member_if(false);
}

cell missed_with_putts(const hole_figures& f, int16 par, bool putts_fit)
{
    return member_if(not_in_regulation(f, par) && putts_fit);
}

/// A hole that was not played passes the first test: then the putts alone decide.
cell hit_with_putts(const hole_figures& f, int16 par, bool putts_fit)
{
    return member_if(!not_in_regulation(f, par) && putts_fit);
}

cell cell_of(int selector, const hole_figures& f, int16 par)
{
    using namespace hole_class;
    const int p = plain(par);
    switch (selector) {
    case made_par:
        return member_if(hole_gross(f) == p);
    case green_missed:
        return member_if(not_in_regulation(f, par));
    case green_missed_one_putt:
        return missed_with_putts(f, par, f.putts == 1);
    case green_missed_two_putts:
        return missed_with_putts(f, par, f.putts == 2);
    case green_missed_three_putts:
        return missed_with_putts(f, par, f.putts >= 3);
    case up_and_down:
        return member_if(gross_is(f, p) && f.putts != 2);
    case chip_in:
        return member_if(hole_shots(f) != 0 && f.putts == 0);
    case made_par_3:
        return p < 3 ? no_cell : par_made(f, p, 3);
    case made_par_4:
        return par_made(f, p, 4);
    case made_par_5:
        return par_made(f, p, 5);
    case average_of_par_3:
        return average_cell(f, p, 3);
    case average_of_par_4:
        return average_cell(f, p, 4);
    case average_of_par_5:
        return average_cell(f, p, 5);
    case hole_in_one:
        return member_if(hole_gross(f) == 1);
    case double_eagle:
        return member_if(gross_is(f, p - 3));
    case eagle:
        return member_if(gross_is(f, p - 2));
    case birdie:
        return member_if(gross_is(f, p - 1));
    case bogey:
        return member_if(gross_is(f, p + 1));
    case double_bogey:
        return member_if(gross_is(f, p + 2));
    case triple_bogey_or_more:
        return member_if(hole_gross(f) != 0 && hole_gross(f) > p + 2);
    case green_hit:
        return member_if(in_regulation(f, par) == 1);
    case green_hit_one_putt:
        return hit_with_putts(f, par, f.putts == 1);
    case green_hit_two_putts:
        return hit_with_putts(f, par, f.putts == 2);
    case green_hit_three_putts:
        return hit_with_putts(f, par, f.putts >= 3);
    default:
        return no_cell;
    }
}

}  // namespace

int summary_selector(int place)
{
    if (place < 1 || place > class_count)
        throw run_time_failure(failure_kind::subscript, u"class %1 of %2"_s.arg(place).arg(class_count));
    // The greens hit are in rows 2 to 5. The row of every other class is its number.
    constexpr int first_green_hit = 2;
    constexpr int last_green_hit = 5;
    if (place >= first_green_hit && place <= last_green_hit)
        return hole_class::green_hit + place - first_green_hit;
    return place;
}

QString hole_cell(int selector, const hole_figures& f, int16 par)
{
    const cell content = cell_of(selector, f, par);
    if (content.empty)
        return {};
    return content.figure == 0 ? u" "_s : QString::number(plain(content.figure));
}

int16 hole_cell_value(int selector, const hole_figures& f, int16 par)
{
    return cell_of(selector, f, par).figure;
}

}  // namespace verdane
