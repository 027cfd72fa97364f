#include "scoring/round_totals.h"

#include <cmath>

#include "base/numbers.h"
#include "base/text.h"

namespace verdane {

namespace {

/// The slope of a course of standard difficulty.
constexpr double standard_slope = 113;
constexpr int characters_shown = 5;

}  // namespace

void round_totals::add_hole(int16 hole_gross, int16 hole_par)
{
    gross = gross + hole_gross;
    par = par + hole_par;
}

int16 round_totals::over_par() const
{
    return gross - par;
}

double differential(int16 gross, double rating, double slope)
{
    return slope == 0 ? 0 : (plain(gross) - rating) * standard_slope / slope;
}

double net_score(int16 gross, double differential)
{
    return plain(gross) - std::floor(differential);
}

QString differential_text(double differential)
{
    const QString text = number_text(differential);
    return trimmed_blanks(QStringView(text).left(characters_shown)).toString();
}

}  // namespace verdane
