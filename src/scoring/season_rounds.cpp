#include "scoring/season_rounds.h"

#include <algorithm>
#include <numeric>
#include <tuple>

#include "scoring/round_totals.h"

namespace verdane {

namespace {

/// From this number of whole rounds on the moving mean covers `window` of them.
struct window_step {
    int whole_rounds;
    int window;
};
constexpr std::array<window_step, 3> window_steps{{{120, 20}, {30, 10}, {0, 5}}};

void add_hole(season_figures& figures, const played_hole& hole)
{
    ++figures.holes;
    figures.over += plain(hole_gross(hole)) - plain(hole.par);
    figures.putts += plain(hole.putts);
    figures.greens += in_regulation(hole, hole.par);
    figures.penalties += plain(hole_penalties(hole));
}

season_course& entry_of(std::vector<season_course>& courses, const season_round& round)
{
    const auto found = std::find_if(courses.begin(), courses.end(), [&](const season_course& course) {
        return course.code == round.course_code;
    });
    return found != courses.end() ? *found
                                  : courses.emplace_back(season_course{round.course_code, round.course, {}});
}

bool comes_first(const season_course& one, const season_course& other)
{
    return std::tuple(-one.sums.rounds, one.course, one.code) <
           std::tuple(-other.sums.rounds, other.course, other.code);
}

}  // namespace

bool is_played(const played_hole& hole)
{
    return hole_gross(hole) != 0;
}

season_figures figures_of_round(const season_round& round)
{
    season_figures figures;
    round_totals totals;
    for (int h = 1; h <= hole_count; ++h) {
        totals.add_hole(hole_gross(round.holes[h]), round.holes[h].par);
        if (is_played(round.holes[h]))
            add_hole(figures, round.holes[h]);
    }
    figures.gross = plain(totals.gross);
    figures.differential = differential(totals.gross, round.rating, round.slope);
    return figures;
}

season_rounds in_order_of_time(season_rounds rounds)
{
    std::stable_sort(rounds.begin(), rounds.end(),
                     [](const season_round& one, const season_round& other) { return one.key < other.key; });
    return rounds;
}

int window_of_moving_mean(int whole_rounds)
{
    return std::find_if(window_steps.begin(), window_steps.end() - 1,
                        [&](const window_step& step) { return whole_rounds >= step.whole_rounds; })
        ->window;
}

std::vector<std::optional<double>> moving_mean(const std::vector<season_figures>& rounds, int window)
{
    std::vector<std::optional<double>> means;
    std::vector<int> last;
    for (const season_figures& round : rounds) {
        means.emplace_back();
        if (!round.whole())
            continue;
        last.push_back(round.over);
        if (last.size() > static_cast<std::size_t>(window))
            last.erase(last.begin());
        if (last.size() == static_cast<std::size_t>(window))
            means.back() = std::accumulate(last.begin(), last.end(), 0.0) / window;
    }
    return means;
}

void season_sums::add(const season_figures& round)
{
    ++rounds;
    holes += round.holes;
    if (!round.whole())
        return;
    ++whole_rounds;
    gross += round.gross;
    over += round.over;
    putts += round.putts;
    greens += round.greens;
    penalties += round.penalties;
    best_gross = std::min(best_gross.value_or(round.gross), round.gross);
    best_differential = std::min(best_differential.value_or(round.differential), round.differential);
}

std::optional<double> season_sums::per_round(double sum) const
{
    return whole_rounds == 0 ? std::nullopt : std::optional(sum / whole_rounds);
}

std::vector<season_course> courses_of_season(const season_rounds& rounds,
                                             const std::vector<season_figures>& figures)
{
    std::vector<season_course> courses;
    for (std::size_t i = 0; i < rounds.size(); ++i)
        entry_of(courses, rounds[i]).sums.add(figures[i]);
    std::sort(courses.begin(), courses.end(), comes_first);
    return courses;
}

}  // namespace verdane
