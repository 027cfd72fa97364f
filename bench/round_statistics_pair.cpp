#include <QStringList>

#include <benchmark/benchmark.h>

#include <array>
#include <map>
#include <vector>

#include "bench/pairs.h"
#include "bench/statistic_pairs.h"
#include "statistics/detail_pass.h"
#include "statistics/round_statistics.h"

namespace verdane::bench {

using namespace Qt::StringLiterals;

namespace {

constexpr int holes = 18;

/// The columns of all holes for each of the prefixes.
QString columns_of(const QStringList& prefixes)
{
    QStringList columns;
    for (const QString& prefix : prefixes)
        columns << columns_of_holes(prefix);
    return columns.join(u',');
}

using pars_by_course = std::map<QString, std::array<int, holes>>;

pars_by_course read_courses(const plain_store& store)
{
    pars_by_course pars;
    QSqlQuery cards = store.run(u"select FIELD_CODE, rating, slope, " + columns_of_holes(u"par"_s) +
                                u" from field_info join vrd_fields on vrd_fields.code = FIELD_CODE"_s);
    while (cards.next()) {
        std::array<int, holes>& of_course = pars[cards.value(0).toString()];
        for (int h = 0; h < holes; ++h)
            of_course.at(static_cast<std::size_t>(h)) = cards.value(3 + h).toInt();
    }
    return pars;
}

/// Adds up each figure over all rounds of a table, hole by hole.
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
                                     columns_of(u"long approach putt pen_rule pen_water pen_bounds "
                                                u"pen_lost missed"_s.split(u' ')) +
                                     u" from games where date >= ? and date <= ?"_s,
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
    QSqlQuery rounds = store.run(u"select " + columns_of({u"sand"_s, u"fairway"_s}) +
                                     u" from games2 where date >= ? and date <= ?"_s,
                                 range);
    while (rounds.next())
        add_row(rounds, 0, figures);
    benchmark::DoNotOptimize(figures);
}

/// The engine adds up the shots, as in the statistic.
void add_shots(const plain_store& store, const selection_arguments& chosen)
{
    QSqlQuery shots = store.run(Statistics::detail_select(chosen));
    while (shots.next())
        benchmark::DoNotOptimize(shots.value(0));
}

void read_and_add_up(const plain_store& store, const selection_arguments& chosen)
{
    const QVariantList range{chosen.from_key, chosen.to_key};
    add_games(store, range);
    add_games2(store, range);
    add_shots(store, chosen);
}

}  // namespace

void register_round_statistics()
{
    const auto fill_stats = [](const selection_arguments& chosen, run_progress& bar) {
        return Statistics::rounds_in_stats(chosen, bar).has_value();
    };
    register_statistic({"round_statistics", fill_stats, read_and_add_up});
}

}  // namespace verdane::bench
