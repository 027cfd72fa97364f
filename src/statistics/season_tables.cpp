#include "statistics/season_tables.h"

#include <algorithm>

#include "scoring/handicap_steps.h"
#include "scoring/round_key.h"
#include "scoring/season_holes.h"
#include "scoring/season_rounds.h"

namespace verdane::Statistics {

using namespace Qt::StringLiterals;

namespace {

using table_rows = std::vector<passed_row>;

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
    return {{{u"rounds"_s, sums.rounds},
             {u"whole_rounds"_s, sums.whole_rounds},
             {u"holes"_s, sums.holes},
             {u"mean_window"_s, all.mean_window},
             {u"gross"_s, cell(sums.per_round(sums.gross))},
             {u"over"_s, cell(sums.per_round(sums.over))},
             {u"putts"_s, cell(sums.per_round(sums.putts))},
             {u"greens"_s, cell(sums.per_round(sums.greens))},
             {u"penalties"_s, cell(sums.per_round(sums.penalties))},
             {u"ranked_holes"_s, holes.candidates},
             {u"least_plays"_s, holes.least_plays}}};
}

table_rows round_rows(const season& all)
{
    table_rows rows;
    for (std::size_t i = 0; i < all.rounds.size(); ++i) {
        const season_round& round = all.rounds[i];
        const season_figures& figures = all.figures[i];
        const int rank = all.handicap.ranks[i];
        rows.push_back({{u"place"_s, static_cast<int>(i) + 1},
                        {u"date"_s, Verdane_tools::key_date_text(round.key)},
                        {u"course"_s, round.course},
                        {u"holes"_s, figures.holes},
                        {u"whole"_s, figures.whole() ? 1 : 0},
                        {u"gross"_s, figures.gross},
                        {u"rating"_s, round.rating},
                        {u"slope"_s, round.slope},
                        {u"differential"_s, figures.differential},
                        {u"counting"_s, rank == 0 ? QVariant() : QVariant(rank)},
                        {u"handicap"_s, cell(all.handicaps[i])},
                        {u"over"_s, figures.over},
                        {u"moving_mean"_s, cell(all.moving_means[i])},
                        {u"putts"_s, figures.putts},
                        {u"greens"_s, figures.greens},
                        {u"penalties"_s, figures.penalties}});
    }
    return rows;
}

table_rows handicap_row(const season& all)
{
    const handicap_steps& steps = all.handicap;
    const int rounds = all.sums.rounds;
    const int least = least_rounds_of_handicap();
    return {{{u"rounds"_s, rounds},
             {u"take"_s, steps.take},
             {u"sum"_s, steps.sum},
             {u"mean"_s, steps.mean},
             {u"factor"_s, steps.factor},
             {u"product"_s, steps.product},
             {u"handicap"_s, steps.text.trimmed()},
             {u"missing"_s, std::max(least - rounds, 0)},
             {u"least_rounds"_s, least}}};
}

table_rows ladder_rows(int rounds)
{
    table_rows rows;
    for (const ladder_step& step : handicap_ladder())
        rows.push_back({{u"first_rounds"_s, step.first},
                        {u"last_rounds"_s, step.last == most_rounds ? QVariant() : QVariant(step.last)},
                        {u"take"_s, step.take},
                        {u"is_current"_s, step.first <= rounds && rounds <= step.last ? 1 : 0}});
    return rows;
}

void add_holes(table_rows& rows, const std::vector<season_hole>& holes, bool are_best)
{
    int rank = 0;
    for (const season_hole& hole : holes)
        rows.push_back({{u"is_best"_s, are_best ? 1 : 0},
                        {u"rank"_s, ++rank},
                        {u"course"_s, hole.course},
                        {u"hole"_s, hole.hole},
                        {u"par"_s, hole.par},
                        {u"plays"_s, hole.plays},
                        {u"mean_over"_s, hole.mean_over}});
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
        rows.push_back({{u"course"_s, course.course},
                        {u"rounds"_s, sums.rounds},
                        {u"whole_rounds"_s, sums.whole_rounds},
                        {u"gross"_s, cell(sums.per_round(sums.gross))},
                        {u"best_gross"_s, cell(sums.best_gross)},
                        {u"over"_s, cell(sums.per_round(sums.over))},
                        {u"putts"_s, cell(sums.per_round(sums.putts))},
                        {u"greens"_s, cell(sums.per_round(sums.greens))},
                        {u"penalties"_s, cell(sums.per_round(sums.penalties))},
                        {u"best_differential"_s, cell(sums.best_differential)}});
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
