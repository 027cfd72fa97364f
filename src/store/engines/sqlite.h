#pragma once

#include <QSqlDatabase>
#include <QSqlError>
#include <QString>

#include "base/run_time_failure.h"

struct sqlite3;

/// What the store needs of SQLite, embedded or as a source, beyond the database classes of Qt.
namespace verdane {

struct commit_statements;

/// The engine's handle of an open connection. Fails with `store_unreachable` if the connection is not one of
/// the embedded engine.
sqlite3* engine_handle(const QSqlDatabase& database);

/// The statements with which the engine commits.
const commit_statements& sqlite_commits();

/// The failure that an error of the engine means; `where` names the statement and the recordset.
run_time_failure store_failure(const QSqlError& error, const QString& where);

}  // namespace verdane
