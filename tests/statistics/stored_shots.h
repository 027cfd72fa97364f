#pragma once

#include <QString>
#include <QStringList>

#include "statistics/selection.h"
#include "tests/statistics/report_rows.h"

/// What the tests of the club statistics share.
namespace verdane::testing {

using namespace Qt::StringLiterals;

/// Rounds on the first days of the year, without shots. The first round has a partner.
class stored_shots : public level_rounds {
public:
    explicit stored_shots(int days, bool french = true);

    /// A shot of a day's round: before, after, unit, fairway, penalty, missed and kind as SQL values.
    void shot(int day, int club, const QString& values) const;

    /// The row of a club (1 to 14) in `stat_sticks`, as texts by ordinal.
    QStringList club(int number) const;
};

/// The rounds between two days, all filters off.
selection_arguments rounds_of_days(int from, int to);

/// Fills the table without window and report; false where no shot was found.
bool fill_clubs(const selection_arguments& chosen);
/// The same for a selection without shots; closes its message box.
void fill_without_result(const selection_arguments& chosen);

/// The nine figures of a club without shots.
inline const QStringList zeros(9, u"0"_s);

}  // namespace verdane::testing
