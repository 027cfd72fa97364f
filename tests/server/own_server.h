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

/// Options of a server that cannot store more than that number of megabytes.
QStringList room_for_mb(int megabytes);

/// Fills the rest of that room.
void fill_server();

}  // namespace verdane::testing
