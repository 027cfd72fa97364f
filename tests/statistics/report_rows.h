#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include "statistics/selection.h"
#include "tests/support/stored_diary.h"

/// Rows other than rounds that the tests of the statistics write to a store, and the rows that they read.
namespace verdane::testing {

/// A fresh store, from which the reports read, too, with level-par rounds on the first days of 2003. The
/// weather is 1 on odd days.
class level_rounds : public stored_diary {
public:
    explicit level_rounds(int days, bool french = true);
};

/// Every row of a table as texts, by ordinal, in the order of insertion.
QList<QStringList> table_rows(const reader& store, const QString& table);

/// Putt lengths of a hole of a stored round, from the first on.
void put_putts(const reader& store, const QString& key, int hole, const QList<int>& lengths);

/// A row of costs with the amounts 1 to 12 times `unit`.
void put_costs(const reader& store, const QString& key, int unit);

/// A shot of a club: the other columns and their values as SQL.
void put_shot(const reader& store, const QString& key, int club, const QString& columns,
              const QString& values);

/// All rounds between two keys, with the clauses of filters that are off.
selection_arguments open_selection(const QString& from_key, const QString& to_key);
/// The same for the putt statistics.
selection_arguments open_putt_selection(const QString& from_key, const QString& to_key);

}  // namespace verdane::testing
