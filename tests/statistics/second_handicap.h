#pragma once

#include <QString>

#include "tests/support/reader.h"

namespace verdane::testing {

/// The handicap of the rounds that a condition on `games` g and `games2` s selects, as the report shows it. A
/// second computation: the store adds the strokes up, and the C library rounds the figure.
QString second_handicap(const reader& store, const QString& condition);

}  // namespace verdane::testing
