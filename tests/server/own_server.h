#pragma once

#include <QString>
#include <QStringList>

/// The server that `tools/with_engine mariadb` has started for this test alone.
namespace verdane::testing {

/// Ends the server as its operator does.
void stop_server();

/// Starts it again with further options.
void start_server(const QStringList& options = {});

/// Sends a signal to its process.
void signal_server(int number);

/// Runs a statement as its administrator.
void administer(const QString& statement);

/// Returns when a connection to the server waits for the lock of a table. A wait of half a minute ends the
/// test. Usable from any thread.
void wait_until_a_table_is_awaited();

/// Options for the next start of the stopped server: its file of tables grows by at most that number of
/// megabytes, and contains the tables that are created meanwhile.
QStringList room_for_mb(int megabytes);

/// Fills the disk space that `room_for_mb` allows, and the pages of a table, with rows that have no key. The
/// next row of the table then needs another page. Rows of pages that are not full can still be changed.
void fill_server(const QString& database, const QString& table);

/// Removes those rows and stops the server. Removing them needs free disk space, too.
void empty_server(const QString& database, const QString& table);

}  // namespace verdane::testing
