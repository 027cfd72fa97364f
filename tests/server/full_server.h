#pragma once

#include <QStringList>

#include "tests/support/outside_connection.h"

namespace verdane::testing {

/// Options for the next start of the stopped server: its file of tables grows by a few megabytes only, and
/// contains the tables that are created meanwhile.
QStringList little_room();

/// Uses up the disk space of a server that was started with `little_room`, so that no statement can write a
/// row: rows have no free page, and neither have the records by which a transaction is undone.
class full_server {
public:
    full_server();
    /// Makes space again, which itself needs more of it, and stops the server.
    ~full_server();
    full_server(const full_server&) = delete;
    full_server& operator=(const full_server&) = delete;

private:
    /// Reads the state before: the server keeps the former version of each row for it, and so cannot use
    /// their space again.
    outside_connection snapshot_;
};

}  // namespace verdane::testing
