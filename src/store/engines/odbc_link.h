#pragma once

#include <QString>

#include "base/run_time_failure.h"

class QSqlError;

/// The connection to a registered data source through Qt's ODBC plug-in.
namespace verdane {

/// How long the server may take to accept the connection, and then to send the result of each statement with
/// which the source is checked, in seconds.
constexpr int source_opening_time_out_s = 3;

/// How long a server may take to send the result of a statement, in seconds; as long as the time-out of the
/// recordsets. Afterwards the connection cannot be used any more.
constexpr int source_time_out_s = 30;

/// How long a statement waits on the server for the lock of a table, and then again for that of a row, in
/// seconds. Both together are shorter than the time-out, so that the failure is that of the lock.
constexpr int source_lock_time_out_s = 12;
static_assert(2 * source_lock_time_out_s < source_time_out_s);

/// How long these wait on the server for a lock. Shorter than their time-out for the same reason.
constexpr int source_opening_lock_time_out_s = 1;
static_assert(2 * source_opening_lock_time_out_s < source_opening_time_out_s);

/// Opens the source under Qt's name `connection`. `time_out_s` is how long the server may take to send the
/// result of a statement; a driver does not change it later. A lost connection is never opened again
/// automatically: the lock of the program ended with it. Fails with `source_unknown`, `source_driver`,
/// `source_password`, `source_host`, `source_login`, `source_busy`, `source_database`, `source_stopped`,
/// `source_silent` or `store_unreachable`. After a failure there is no connection of that name.
void open_link(const QString& connection, const QString& source, int time_out_s);

/// The code of the engine in an error; 0 for an error of the driver manager.
int native_code(const QSqlError& error);

/// The text of an error from the driver, without the text that Qt adds.
QString text_of(const QSqlError& error);

}  // namespace verdane
