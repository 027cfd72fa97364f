#pragma once

#include <QString>
#include <QStringList>

/// The server that `tools/with_engine mariadb` has started for this test alone.
namespace verdane::testing {

/// Ends the server as its operator does.
void stop_server();

/// Starts it again with further options.
void start_server(const QStringList& options = {});

/// Sends a signal to its process. After SIGSTOP it returns when the process has stopped.
void signal_server(int number);

/// Runs a statement as its administrator.
void administer(const QString& statement);

/// Returns when a connection to the server waits for the lock of a table. A wait of half a minute ends the
/// test. Usable from any thread.
void wait_until_a_table_is_awaited();

/// The file of the server's own tables.
QString file_of_tables();

}  // namespace verdane::testing
