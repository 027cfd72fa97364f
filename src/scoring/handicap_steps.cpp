#include "scoring/handicap_steps.h"

#include <algorithm>
#include <numeric>

#include "scoring/handicap.h"
#include "scoring/limits.h"

namespace verdane {

namespace {

int take_of(std::size_t rounds)
{
    return plain(handicap_take(static_cast<int>(rounds)));
}

/// The sum of the best differentials, added from the best one on.
double sum_of_best(const std::vector<double>& sorted, int take)
{
    return std::accumulate(sorted.begin(), sorted.begin() + take, 0.0);
}

/// The places of the rounds, from the best differential to the worst.
std::vector<std::size_t> places_by_differential(const std::vector<double>& differentials)
{
    std::vector<std::size_t> places(differentials.size());
    std::iota(places.begin(), places.end(), std::size_t{0});
    std::stable_sort(places.begin(), places.end(), [&](std::size_t one, std::size_t other) {
        return differentials[one] < differentials[other];
    });
    return places;
}

}  // namespace

handicap_steps steps_of_handicap(const std::vector<double>& differentials)
{
    handicap_steps steps;
    steps.take = take_of(differentials.size());
    steps.ranks.resize(differentials.size());
    const std::vector<std::size_t> places = places_by_differential(differentials);
    for (int i = 0; i < steps.take; ++i) {
        const std::size_t place = places[static_cast<std::size_t>(i)];
        steps.ranks[place] = i + 1;
        steps.sum += differentials[place];
    }
    if (steps.take > 0) {
        steps.mean = steps.sum / steps.take;
        steps.factor = handicap_factor(steps.take);
        steps.product = steps.mean * steps.factor;
    }
    steps.text = handicap_text(steps.take, steps.sum);
    return steps;
}

std::vector<std::optional<double>> handicaps_over_time(const std::vector<double>& differentials)
{
    std::vector<std::optional<double>> handicaps;
    std::vector<double> sorted;
    for (const double differential : differentials) {
        sorted.insert(std::upper_bound(sorted.begin(), sorted.end(), differential), differential);
        const int take = take_of(sorted.size());
        handicaps.push_back(handicap_figure(take, sum_of_best(sorted, take)));
    }
    return handicaps;
}

std::vector<ladder_step> handicap_ladder()
{
    std::vector<ladder_step> ladder{{0, 0, 0}};
    for (int rounds = 1; rounds <= most_rounds; ++rounds) {
        const int take = take_of(static_cast<std::size_t>(rounds));
        if (take == ladder.back().take)
            ladder.back().last = rounds;
        else
            ladder.push_back({rounds, rounds, take});
    }
    return ladder;
}

int least_rounds_of_handicap()
{
    const std::vector<ladder_step> ladder = handicap_ladder();
    return ladder.front().last + 1;
}

}  // namespace verdane
