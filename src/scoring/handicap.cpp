#include "scoring/handicap.h"

#include <algorithm>
#include <array>

#include "base/numbers.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

struct step {
    int rounds;
    int take;
};

/// The steps of the ladder: from `rounds` rounds on, `take` differentials count.
constexpr std::array<step, 10> ladder{
    {{20, 10}, {19, 9}, {18, 8}, {16, 7}, {14, 6}, {12, 5}, {10, 4}, {8, 3}, {6, 2}, {5, 1}}};

constexpr double factor_of_mean = 0.96;

double handicap(int take, double sum)
{
    if (take <= 0)
        return 0;
    // The factor applies to a mean only: a single differential counts whole.
    return round_to_tenth(take == 1 ? sum : sum / take * factor_of_mean);
}

}  // namespace

int16 handicap_take(int16 rounds)
{
    const auto reached = std::find_if(ladder.begin(), ladder.end(),
                                      [rounds](const step& each) { return rounds >= each.rounds; });
    return reached == ladder.end() ? 0 : reached->take;
}

QString handicap_text(int16 take, double sum)
{
    const double figure = handicap(plain(take), sum);
    return figure == 0 ? u"N/A"_s : plain_number_text(figure);
}

}  // namespace verdane
