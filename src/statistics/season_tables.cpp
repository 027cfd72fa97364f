#include "statistics/season_tables.h"

#include <algorithm>

#include "scoring/handicap_steps.h"
#include "scoring/round_key.h"
#include "scoring/season_courses.h"
#include "scoring/season_holes.h"

namespace verdane::Statistics {

using namespace Qt::StringLiterals;

namespace {

using table_rows = std::vector<std::vector<QVariant>>;

/// Null if there is no value.
template <typename Value>
QVariant cell(const std::optional<Value>& value)
{
    return value ? QVariant(*value) : QVariant();
}

/// The rounds in order of time with all that is computed from them.
struct season {
    season_rounds rounds;
    std::vector<season_figures> figures;
    season_sums sums;
    int mean_window = 0;
    std::vector<std::optional<double>> moving_means;
    handicap_steps handicap;
    std::vector<std::optional<double>> handicaps;
};

season computed(const season_rounds& rounds)
{
    season all;
    all.rounds = in_order_of_time(rounds);
    std::vector<double> differentials;
    for (const season_round& round : all.rounds) {
        all.figures.push_back(figures_of_round(round));
        all.sums.add(all.figures.back());
        differentials.push_back(all.figures.back().differential);
    }
    all.mean_window = window_of_moving_mean(all.sums.whole_rounds);
    all.moving_means = moving_mean(all.figures, all.mean_window);
    all.handicap = steps_of_handicap(differentials);
    all.handicaps = handicaps_over_time(differentials);
    return all;
}

table_rows total_row(const season& all, const ranked_holes& holes)
{
    const season_sums& sums = all.sums;
    return {{sums.rounds, sums.whole_rounds, sums.holes, all.mean_window, cell(sums.per_round(sums.gross)),
             cell(sums.per_round(sums.over)), cell(sums.per_round(sums.putts)),
             cell(sums.per_round(sums.greens)), cell(sums.per_round(sums.penalties)), holes.candidates,
             holes.least_plays}};
}

table_rows round_rows(const season& all)
{
    table_rows rows;
    for (std::size_t i = 0; i < all.rounds.size(); ++i) {
        const season_round& round = all.rounds[i];
        const season_figures& figures = all.figures[i];
        const int rank = all.handicap.ranks[i];
        rows.push_back({static_cast<int>(i) + 1, Verdane_tools::key_date_text(round.key), round.course,
                        figures.holes, figures.whole() ? 1 : 0, figures.gross, round.rating, round.slope,
                        figures.differential, rank == 0 ? QVariant() : QVariant(rank), cell(all.handicaps[i]),
                        figures.over, cell(all.moving_means[i]), figures.putts, figures.greens,
                        figures.penalties});
    }
    return rows;
}

table_rows handicap_row(const season& all)
{
    const handicap_steps& steps = all.handicap;
    const int rounds = all.sums.rounds;
    const int least = least_rounds_of_handicap();
    return {{rounds, steps.take, steps.sum, steps.mean, steps.factor, steps.product, steps.text.trimmed(),
             std::max(least - rounds, 0), least}};
}

table_rows ladder_rows(int rounds)
{
    table_rows rows;
    for (const ladder_step& step : handicap_ladder())
        rows.push_back({step.first, step.last == most_rounds ? QVariant() : QVariant(step.last), step.take,
                        step.first <= rounds && rounds <= step.last ? 1 : 0});
    return rows;
}

void add_holes(table_rows& rows, const std::vector<season_hole>& holes, bool are_best)
{
    int rank = 0;
    for (const season_hole& hole : holes)
        rows.push_back(
            {are_best ? 1 : 0, ++rank, hole.course, hole.hole, hole.par, hole.plays, hole.mean_over});
}

table_rows hole_rows(const ranked_holes& holes)
{
    table_rows rows;
    add_holes(rows, holes.best, true);
    add_holes(rows, holes.worst, false);
    return rows;
}

table_rows course_rows(const season& all)
{
    table_rows rows;
    for (const season_course& course : courses_of_season(all.rounds, all.figures)) {
        const season_sums& sums = course.sums;
        rows.push_back({course.course, sums.rounds, sums.whole_rounds, cell(sums.per_round(sums.gross)),
                        cell(sums.best_gross), cell(sums.per_round(sums.over)),
                        cell(sums.per_round(sums.putts)), cell(sums.per_round(sums.greens)),
                        cell(sums.per_round(sums.penalties)), cell(sums.best_differential)});
    }
    return rows;
}

}  // namespace

passed_rows season_tables(const season_rounds& rounds)
{
    if (rounds.empty())
        return {};
    const season all = computed(rounds);
    const ranked_holes holes = holes_of_season(all.rounds);
    return {{u"season"_s, total_row(all, holes)},      {u"season_rounds"_s, round_rows(all)},
            {u"season_handicap"_s, handicap_row(all)}, {u"season_ladder"_s, ladder_rows(all.sums.rounds)},
            {u"season_holes"_s, hole_rows(holes)},     {u"season_courses"_s, course_rows(all)}};
}

}  // namespace verdane::Statistics
