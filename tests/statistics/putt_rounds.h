#pragma once

#include <QStringList>

#include "statistics/selection.h"
#include "tests/statistics/report_rows.h"
#include "tests/support/hand.h"

/// What the tests of the putt statistics share.
namespace verdane::testing {

/// Rounds on the first days of the year, without putt lengths.
class stored_rounds : public level_rounds {
public:
    using level_rounds::level_rounds;

    /// Lengths of a hole's putts, from the first on.
    void putts(int day, int hole, const QList<int>& lengths) const;

    /// A row of `s_put1` or `s_put2`, counted from 1, as texts by ordinal.
    QStringList by_first(int row) const;
    QStringList by_start(int row) const;
    /// All rows of both.
    QList<QStringList> grids() const;
    /// The number of rounds in the head.
    int rounds_counted() const { return by_first(1).at(26).toInt(); }
};

/// The seven counts of a row.
QStringList bands(const QStringList& row);

/// The rounds between two days, all filters off.
selection_arguments days(int from, int to);

/// Fills the tables without window and report.
bool fill_grids(const selection_arguments& chosen);

/// Closes the box for a selection without putts.
void answer_no_putts(hand& user);

}  // namespace verdane::testing
