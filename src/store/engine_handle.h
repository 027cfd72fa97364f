#pragma once

#include <QSqlDatabase>

struct sqlite3;

namespace verdane {

/// The engine's own handle of an open connection, for what the toolkit does not offer.
/// Fails with `store_unreachable` where the connection is not one of the embedded engine's.
sqlite3* engine_handle(const QSqlDatabase& database);

}  // namespace verdane
