#pragma once

#include <QString>

#include "store/store_location.h"

namespace verdane::testing {

/// Lets a column store whole numbers of any size, as every column of a file does.
void widen_column(const store_location& store, const QString& table, const QString& column);

}  // namespace verdane::testing
