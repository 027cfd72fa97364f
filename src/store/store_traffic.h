#pragma once

#include <QtGlobal>

namespace verdane {

/// What a connection has sent to its engine and read from it since it was made, counted in the same way on
/// every engine. For tests and measurements.
struct store_traffic {
    qint64 statements = 0;
    qint64 rows = 0;
    /// Values of columns in these rows.
    qint64 values = 0;
};

}  // namespace verdane
