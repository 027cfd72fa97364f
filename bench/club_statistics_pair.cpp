#include <benchmark/benchmark.h>

#include <array>
#include <cmath>

#include "bench/pairs.h"
#include "bench/statistic_pairs.h"
#include "statistics/club_shots.h"
#include "statistics/club_statistics.h"

/// The statistics of clubs, as the selection window runs them.
namespace verdane::bench {

namespace {

struct sums_of_club {
    int shots = 0;
    int clean = 0;
    double distance = 0;
    double longest = 0;
    int missed = 0;
    int penalised = 0;
    int holed = 0;
    std::array<int, 4> positions{};
};

double distance_of(const QSqlQuery& shot)
{
    const double before = shot.value(2).toDouble();
    const double after = shot.value(3).toDouble();
    const QString unit = shot.value(20).toString();
    const bool in_yards = unit == u"Yards" || unit == u"Verges";
    const double rest = in_yards ? after : after / 3;
    return std::nearbyint(shot.value(6).toBool() ? before + rest : before - rest);
}

void add_shot(const QSqlQuery& shot, sums_of_club& club)
{
    const bool missed = shot.value(7).toBool();
    const int penalty = shot.value(15).toInt();
    ++club.shots;
    club.missed += missed ? 1 : 0;
    club.penalised += penalty > 0 ? 1 : 0;
    club.holed += shot.value(16).toInt() == 2 && shot.value(3).toInt() == 0 ? 1 : 0;
    ++club.positions.at(shot.value(14).toUInt());
    if (missed || shot.value(8).toBool() || shot.value(9).toBool() || penalty == 3 || penalty == 4)
        return;
    const double distance = distance_of(shot);
    ++club.clean;
    club.distance += distance;
    club.longest = std::max(club.longest, distance);
}

void read_and_add_up(const plain_store& store, const selection_arguments& chosen)
{
    std::array<sums_of_club, 15> clubs;
    int rounds = 0;
    QString round;
    QSqlQuery shots = store.run(Statistics::club_shot_select(chosen));
    while (shots.next()) {
        QString key = shots.value(0).toString();
        if (key != round) {
            round = std::move(key);
            ++rounds;
        }
        add_shot(shots, clubs.at(shots.value(13).toUInt()));
    }
    benchmark::DoNotOptimize(clubs);
    benchmark::DoNotOptimize(rounds);
}

bool fill(const selection_arguments& chosen, run_progress& bar)
{
    return Statistics::fill_stat_sticks(chosen, false, bar);
}

}  // namespace

void register_club_statistics()
{
    register_statistic({"club_statistics", fill, read_and_add_up});
}

}  // namespace verdane::bench
