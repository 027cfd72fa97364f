#pragma once

#include <QStringList>

namespace verdane {

/// Statements that set what a connection to the server depends on, whatever the defaults of the server and
/// the statements are with which it begins each connection (`init_connect`). `lock_time_out_s` is how long a
/// statement waits for the lock of a table, and then again for that of a row.
QStringList session_settings(int lock_time_out_s);

/// Statements that fail unless the account may select, insert, update and delete rows of every table of the
/// store. The server prepares statements for them and never runs these, so nothing changes.
QStringList statements_that_need_rights();

}  // namespace verdane
