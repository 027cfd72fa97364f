#include <QProgressBar>

#include <benchmark/benchmark.h>

#include <array>
#include <map>
#include <vector>

#include "detail_pass.h"
#include "diaries.h"
#include "full_diary.h"
#include "pairs.h"
#include "plain_store.h"
#include "Statistics.h"
#include "stopwatch.h"

/// The statistics of all rounds up to the finished table, against reading the same rows with plain SQL
/// and adding them up in memory.
namespace verdane::bench {

namespace {

constexpr int holes = 18;

selection_arguments all_rounds()
{
    selection_arguments chosen;
    chosen.from_key = testing::key_in_diary(0);
    chosen.to_key = testing::key_in_diary(testing::rounds_of_full_diary - 1);
    return chosen;
}

void round_statistics(benchmark::State& state)
{
    const opened_store store(diaries_of_run().full());
    QProgressBar bar;
    run_progress progress(bar);
    for (auto _ : state) {
        const stopwatch watch;
        if (!Statistics::fill_stats(all_rounds(), progress))
            state.SkipWithError("the selection holds no round");
        state.SetIterationTime(watch.seconds());
    }
}

/// "PREFIX_1, PREFIX_2, ... PREFIX_18" for each of the prefixes.
QString columns_of_holes(std::initializer_list<const char*> prefixes)
{
    QStringList columns;
    for (const char* prefix : prefixes) {
        for (int h = 1; h <= holes; ++h)
            columns << QStringLiteral("%1_%2").arg(QLatin1String(prefix)).arg(h);
    }
    return columns.join(u',');
}

using pars_by_course = std::map<QString, std::array<int, holes>>;

pars_by_course read_courses(const plain_store& store)
{
    pars_by_course pars;
    QSqlQuery cards =
        store.run(u"select FIELD_CODE, rating, slope, " + columns_of_holes({"par"}) +
                  QStringLiteral(" from field_info join vrd_fields on vrd_fields.code = FIELD_CODE"));
    while (cards.next()) {
        std::array<int, holes>& of_course = pars[cards.value(0).toString()];
        for (int h = 0; h < holes; ++h)
            of_course.at(static_cast<std::size_t>(h)) = cards.value(3 + h).toInt();
    }
    return pars;
}

/// Adds up one figure after the other, each over all rounds of a table, hole by hole.
using sums_of_holes = std::vector<std::array<int, holes>>;

void add_row(const QSqlQuery& row, int first, sums_of_holes& sums)
{
    int column = first;
    for (auto& figure : sums) {
        for (int& sum : figure)
            sum += row.value(column++).toInt();
    }
}

void add_games(const plain_store& store, const QVariantList& range)
{
    const pars_by_course pars = read_courses(store);
    sums_of_holes figures(8);
    std::array<int, holes> par_sums{};
    QSqlQuery rounds = store.run(u"select CODEF, " +
                                     columns_of_holes({"long", "approach", "putt", "pen_rule", "pen_water",
                                                       "pen_bounds", "pen_lost", "missed"}) +
                                     QStringLiteral(" from games where date >= ? and date <= ?"),
                                 range);
    while (rounds.next()) {
        add_row(rounds, 1, figures);
        const auto& of_course = pars.at(rounds.value(0).toString());
        for (std::size_t h = 0; h < par_sums.size(); ++h)
            par_sums[h] += of_course[h];
    }
    benchmark::DoNotOptimize(figures);
    benchmark::DoNotOptimize(par_sums);
}

void add_games2(const plain_store& store, const QVariantList& range)
{
    sums_of_holes figures(2);
    QSqlQuery rounds = store.run(u"select " + columns_of_holes({"sand", "fairway"}) +
                                     QStringLiteral(" from games2 where date >= ? and date <= ?"),
                                 range);
    while (rounds.next())
        add_row(rounds, 0, figures);
    benchmark::DoNotOptimize(figures);
}

/// The engine itself adds up the shots, here as in the statistic.
void add_shots(const plain_store& store)
{
    QSqlQuery shots = store.run(Statistics::detail_select(all_rounds()));
    while (shots.next())
        benchmark::DoNotOptimize(shots.value(0));
}

void round_statistics_floor(benchmark::State& state)
{
    const plain_store store(diaries_of_run().full());
    const QVariantList range{all_rounds().from_key, all_rounds().to_key};
    for (auto _ : state) {
        const stopwatch watch;
        add_games(store, range);
        add_games2(store, range);
        add_shots(store);
        state.SetIterationTime(watch.seconds());
    }
}

}  // namespace

void register_statistics()
{
    register_timed("round_statistics", round_statistics);
    register_timed("round_statistics_floor", round_statistics_floor);
}

}  // namespace verdane::bench
