#include <benchmark/benchmark.h>

#include <array>

#include "bench/pairs.h"
#include "bench/statistic_pairs.h"
#include "statistics/putt_statistics.h"

namespace verdane::bench {

using namespace Qt::StringLiterals;

namespace {

constexpr int holes = 18;
constexpr int lengths_of_hole = 6;
constexpr std::size_t bands = 7;

using limits = std::array<int, bands - 1>;
constexpr limits start_limits{50, 40, 30, 20, 10, 5};
constexpr limits stop_limits{25, 20, 15, 10, 5, 2};

std::size_t band_of(int length, const limits& floors)
{
    std::size_t band = 0;
    while (band < floors.size() && length < floors[band])
        ++band;
    return band;
}

using grid = std::array<std::array<int, bands>, bands>;

struct putt_grids {
    grid putts_by_first{};
    grid stop_by_start{};
};

void add_hole(const QSqlQuery& round, int column, putt_grids& grids)
{
    int length = round.value(column).toInt();
    const std::size_t first_band = band_of(length, start_limits);
    std::size_t putts = 0;
    while (length > 0) {
        const int rest = ++putts < lengths_of_hole ? round.value(++column).toInt() : 0;
        ++grids.stop_by_start.at(band_of(length, start_limits)).at(band_of(rest, stop_limits));
        length = rest;
    }
    ++grids.putts_by_first.at(putts).at(first_band);
}

QString columns_of_lengths()
{
    QStringList columns;
    for (int h = 1; h <= holes; ++h) {
        for (int putt = 1; putt <= lengths_of_hole; ++putt)
            columns << u"putt_len_%1_%2"_s.arg(h).arg(putt);
    }
    return columns.join(u',');
}

void read_and_add_up(const plain_store& store, const selection_arguments& chosen)
{
    putt_grids grids;
    QSqlQuery rounds = store.run(u"select " + columns_of_lengths() +
                                     u" from games2 where date >= ? and date <= ? order by date"_s,
                                 {chosen.from_key, chosen.to_key});
    while (rounds.next()) {
        for (int hole = 0; hole < holes; ++hole)
            add_hole(rounds, lengths_of_hole * hole, grids);
    }
    benchmark::DoNotOptimize(grids);
}

}  // namespace

void register_putt_statistics()
{
    register_statistic(
        {"putt_statistics", Statistics::fill_putt_tables, read_and_add_up, clause_form::alone});
}

}  // namespace verdane::bench
