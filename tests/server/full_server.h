#pragma once

#include "tests/support/outside_connection.h"

namespace verdane::testing {

/// Starts the stopped server. Its file of tables grows by a few megabytes only, and contains the tables that
/// are created meanwhile.
void start_with_small_table_space();

/// Uses up the disk space of a server that was started with `start_with_small_table_space`, so that no
/// statement can write a row: there is no free page for rows, and none for the undo records of a transaction.
class full_server {
public:
    full_server();
    /// Frees the space, for which the server needs more space at first, and stops the server.
    ~full_server();
    full_server(const full_server&) = delete;
    full_server& operator=(const full_server&) = delete;

private:
    /// Reads the earlier state. For it the server keeps the former version of each row, and so cannot use
    /// their space again.
    outside_connection snapshot_;
};

}  // namespace verdane::testing
