#pragma once

#include <QSqlDatabase>

#include "store/engines/attached_copy.h"
#include "store/lock_wait.h"
#include "store/store_location.h"

struct sqlite3;

/// The committed rows of some tables, copied into memory.
namespace verdane {

/// Copies tables, as one moment of the committed rows, from a store into `target`, an open and empty SQLite
/// database in memory, which was opened with `QSQLITE_OPEN_URI`. Rows keep their order, columns their names
/// and types. A table that the store lacks is left out.
///
/// A file is read on a connection of its own, a source on the program's connection if that is open. Fails
/// with `store_unreachable` when the store cannot be opened, `store_damaged` when it cannot be read, and
/// `store_locked` when another program locks it for longer than `lock_wait::default_time_out_s` or the user
/// gives up waiting, for which `notice` is shown.
void copy_tables(const store_location& store, const copied_tables& tables, QSqlDatabase& target,
                 const lock_notice_maker& notice);

/// The engine's handle of such a database, for limits on the queries that read it. Fails with
/// `store_unreachable` if the database is of another kind.
sqlite3* handle_of_copy(const QSqlDatabase& target);

}  // namespace verdane
