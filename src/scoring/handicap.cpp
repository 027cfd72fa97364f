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

}  // namespace

int16 handicap_take(int16 rounds)
{
    const auto reached = std::find_if(ladder.begin(), ladder.end(),
                                      [rounds](const step& each) { return rounds >= each.rounds; });
    return reached == ladder.end() ? 0 : reached->take;
}

double handicap_factor(int take)
{
    return take == 1 ? 1 : factor_of_mean;
}

std::optional<double> handicap_figure(int16 take, double sum)
{
    const int count = plain(take);
    if (count <= 0)
        return {};
    const double figure = round_to_tenth(sum / count * handicap_factor(count));
    return figure == 0 ? std::nullopt : std::optional(figure);
}

QString handicap_text(int16 take, double sum)
{
    const std::optional<double> figure = handicap_figure(take, sum);
    return figure ? plain_number_text(*figure) : u"N/A"_s;
}

}  // namespace verdane
