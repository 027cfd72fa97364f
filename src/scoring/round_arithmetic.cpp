#include "scoring/round_arithmetic.h"

#include <array>
#include <cmath>

#include "base/numbers.h"
#include "base/text.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr int fewest_rounds = 5;
// From five rounds to twenty. A ladder, not a rule: it climbs faster near the top.
constexpr std::array<int, 16> takes = {1, 2, 2, 3, 3, 4, 4, 5, 5, 6, 6, 7, 7, 8, 9, 10};

constexpr double slope_of_reference = 113;
constexpr double share_of_the_mean = 0.96;

double handicap(int take, double sum)
{
    if (take <= 0)
        return 0;
    // One differential alone is taken whole: the share applies to a mean only.
    return round_to_tenth(take == 1 ? sum : sum / take * share_of_the_mean);
}

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
    return slope == 0 ? 0 : (plain(gross) - rating) * slope_of_reference / slope;
}

double net_score(int16 gross, double differential)
{
    return plain(gross) - std::floor(differential);
}

QString differential_text(double differential)
{
    const QString text = number_text(differential);
    return trimmed_blanks(QStringView(text).left(5)).toString();
}

int16 handicap_take(int16 rounds)
{
    const int n = plain(rounds);
    if (n < fewest_rounds)
        return static_cast<std::int16_t>(0);
    const auto step = static_cast<std::size_t>(n - fewest_rounds);
    return static_cast<std::int16_t>(step < takes.size() ? takes[step] : takes.back());
}

QString handicap_text(int16 take, double sum)
{
    const double figure = handicap(plain(take), sum);
    return figure == 0 ? u"N/A"_s : plain_number_text(figure);
}

}  // namespace verdane
