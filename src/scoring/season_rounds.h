#pragma once

#include <QString>

#include <optional>
#include <vector>

#include "scoring/round_sums.h"

/// The figures of each round of a season, in order of time. Pure functions. A played hole has at least one
/// stroke or penalty. In a whole round all holes are played; means over rounds use whole rounds only.
namespace verdane {

/// One stored round.
struct season_round {
    /// 14 digits.
    QString key;
    QString course_code;
    /// The name of the course and its tee, as shown.
    QString course;
    double rating = 0;
    double slope = 0;
    by_hole<played_hole> holes;
};

/// In any order.
using season_rounds = std::vector<season_round>;

/// The figures of one round.
struct season_figures {
    /// Holes played.
    int holes = 0;
    /// Strokes of all holes.
    int gross = 0;
    /// Strokes less par of the holes played.
    int over = 0;
    int putts = 0;
    /// Greens reached in regulation.
    int greens = 0;
    int penalties = 0;
    double differential = 0;

    bool whole() const { return holes == hole_count; }
};

bool is_played(const played_hole& hole);

/// Fails with `overflow` if the gross exceeds 16 bits.
season_figures figures_of_round(const season_round& round);

/// The rounds sorted by their keys.
season_rounds in_order_of_time(season_rounds rounds);

/// How many whole rounds the moving mean covers: 5, or more for many rounds, so that the line stays readable.
int window_of_moving_mean(int whole_rounds);

/// For each whole round the mean strokes against par of the last `window` whole rounds, itself included. No
/// value for a round that is not whole, and for a whole round with fewer than `window` - 1 before it.
std::vector<std::optional<double>> moving_mean(const std::vector<season_figures>& rounds, int window);

/// Sums over the whole rounds of a season, or of one course.
struct season_sums {
    int rounds = 0;
    int whole_rounds = 0;
    /// Holes played, in all rounds.
    int holes = 0;
    /// Of the whole rounds.
    double gross = 0;
    double over = 0;
    double putts = 0;
    double greens = 0;
    double penalties = 0;
    std::optional<int> best_gross;
    std::optional<double> best_differential;

    void add(const season_figures& round);
    /// A sum per whole round; no value if there is none.
    std::optional<double> per_round(double sum) const;
};

/// The rounds on one course.
struct season_course {
    QString code;
    QString course;
    season_sums sums;
};

/// One entry for each course, the one with the most rounds first, then by name. `figures` are those of
/// `rounds`, in the same order.
std::vector<season_course> courses_of_season(const season_rounds& rounds,
                                             const std::vector<season_figures>& figures);

}  // namespace verdane
