#pragma once

#include <QString>

#include <array>

namespace verdane::guided_day {

/// A round as the golfer enters it: for each hole the eleven figures in the order of the quick page (long,
/// approach, putts; fairway, sand, missed, recovery; water, lost, rule, bounds).
struct played_round {
    QString date;  ///< as in the key: "20260614"
    QString hours, minutes, seconds;
    std::array<QString, 18> holes;

    QString key() const { return date + hours + minutes + seconds; }
    /// One of the eleven figures of a hole (1 to 18).
    int figure(int hole, int place) const;
    int gross(int hole) const;
    int gross() const;
};

/// Rounds of today at 9:30:05 and at 14:05:00. Hole 18 has no penalty: a penalty typed there changes the
/// totals on the screen only with the next stroke.
played_round morning_round();
played_round afternoon_round();

/// A round of today whose first three holes are entered shot by shot (`enter_detailed_round`); their figures
/// are the sums of these shots.
played_round detailed_round(const QString& hours, const QString& minutes);

}  // namespace verdane::guided_day
