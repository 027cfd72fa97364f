#pragma once

#include <QStringList>

namespace verdane {

/// The tables that a template may read: those that the statistics and the scorecard fill, and the names of
/// the clubs, for which the scorecard's table has no column.
const QStringList& readable_tables();

}  // namespace verdane
