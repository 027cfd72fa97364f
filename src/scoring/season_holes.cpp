#include "scoring/season_holes.h"

#include <algorithm>
#include <map>
#include <tuple>
#include <utility>

namespace verdane {

namespace {

constexpr int usual_least_plays = 3;
constexpr std::size_t most_ranked = 5;

/// The holes that were played, in order of course and hole. `mean_over` is a sum until all rounds are added.
std::vector<season_hole> sums_of_holes(const season_rounds& rounds)
{
    std::map<std::pair<QString, int>, season_hole> holes;
    for (const season_round& round : rounds)
        for (int h = 1; h <= hole_count; ++h) {
            const played_hole& hole = round.holes[h];
            if (!is_played(hole))
                continue;
            season_hole& sums = holes[{round.course_code, h}];
            sums = {round.course_code,
                    round.course,
                    h,
                    plain(hole.par),
                    sums.plays + 1,
                    sums.mean_over + plain(hole_gross(hole)) - plain(hole.par)};
        }
    std::vector<season_hole> result;
    for (auto& [place, hole] : holes) {
        hole.mean_over /= hole.plays;
        result.push_back(hole);
    }
    return result;
}

int least_plays_of(const std::vector<season_hole>& holes)
{
    int most = 0;
    for (const season_hole& hole : holes)
        most = std::max(most, hole.plays);
    return std::min(most, usual_least_plays);
}

/// `sign` is 1 to sort the lowest mean to the front and -1 for the highest.
void sort_holes(std::vector<season_hole>& holes, int sign)
{
    const auto order = [sign](const season_hole& hole) {
        return std::tuple(sign * hole.mean_over, -hole.plays);
    };
    std::stable_sort(holes.begin(), holes.end(), [&](const season_hole& one, const season_hole& other) {
        return order(one) < order(other);
    });
}

/// Removes the first holes from the list.
std::vector<season_hole> taken_from_front(std::vector<season_hole>& holes, std::size_t count)
{
    const auto end = holes.begin() + static_cast<std::ptrdiff_t>(std::min(count, most_ranked));
    std::vector<season_hole> taken(holes.begin(), end);
    holes.erase(holes.begin(), end);
    return taken;
}

}  // namespace

ranked_holes holes_of_season(const season_rounds& rounds)
{
    std::vector<season_hole> holes = sums_of_holes(rounds);
    ranked_holes ranked;
    ranked.least_plays = least_plays_of(holes);
    holes.erase(std::remove_if(holes.begin(), holes.end(),
                               [&](const season_hole& hole) { return hole.plays < ranked.least_plays; }),
                holes.end());
    ranked.candidates = static_cast<int>(holes.size());
    sort_holes(holes, 1);
    ranked.best = taken_from_front(holes, (holes.size() + 1) / 2);
    sort_holes(holes, -1);
    ranked.worst = taken_from_front(holes, holes.size());
    return ranked;
}

}  // namespace verdane
