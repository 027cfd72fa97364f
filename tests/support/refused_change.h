#pragma once

#include <QString>

namespace verdane::testing {

/// The statement of a trigger `refuse`, which makes the engine of the tests refuse an "insert", "update" or
/// "delete" of those rows of a table that meet a condition on `old` and `new`; of all rows without one.
QString refuse(const QString& change, const QString& table, const QString& condition = {});

/// The statement that removes it.
QString refuse_no_more();

}  // namespace verdane::testing
