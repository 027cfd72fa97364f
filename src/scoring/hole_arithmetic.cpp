#include "scoring/hole_arithmetic.h"

#include "base/numbers.h"

namespace verdane {

namespace {

/// Adds up in 16 bits, each step checked.
template <typename... Counts>
int16 sum_of(int16 first, Counts... others)
{
    int16 sum = first;
    ((sum = sum + others), ...);
    return sum;
}

}  // namespace

int16 hole_shots(const hole_figures& f)
{
    return sum_of(f.long_shots, f.approach);
}

int16 hole_penalties(const hole_figures& f)
{
    return sum_of(f.pen_rule, f.pen_water, f.pen_bounds, f.pen_lost);
}

int16 hole_gross(const hole_figures& f)
{
    return sum_of(hole_penalties(f), f.long_shots, f.approach, f.putts);
}

int in_regulation(const hole_figures& f, int16 par)
{
    return sum_of(f.long_shots, hole_penalties(f), f.approach) == plain(par) - 2 ? 1 : 0;
}

bool not_in_regulation(const hole_figures& f, int16 par)
{
    return hole_gross(f) != 0 && in_regulation(f, par) != 1;
}

int16 figure_of_box(QStringView text)
{
    return to_int16(text);
}

QString sum_of_boxes(std::initializer_list<QString> texts)
{
    double sum = 0;
    for (const QString& text : texts)
        sum += leading_number(text);
    return number_text(sum);
}

}  // namespace verdane
