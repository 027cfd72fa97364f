#pragma once

#include <QString>

#include <string_view>

namespace verdane {

enum class cursor_type { dynamic, fixed };
enum class lock_type { optimistic, batch_optimistic };
enum class cursor_location { server, client };

/// The settings of a recordset, applied whenever it is opened. Each recordset of the catalogue is declared
/// next to its table. Cursor, location and cache size are listed for completeness: they have no effect on a
/// store that is one local file, for the reason given at each.
template <typename Text>
struct basic_recordset_settings {
    Text name;
    Text source;
    /// No effect: both kinds of cursor read their rows once, and later rows after `Requery`. Only one program
    /// changes the file, so a dynamic cursor would find no changes of others.
    cursor_type cursor = cursor_type::fixed;
    lock_type lock = lock_type::optimistic;
    /// No effect: the engine is a library of this process, so the rows of server-side and client-side cursors
    /// are in the same memory.
    cursor_location location = cursor_location::server;
    /// No effect: a recordset keeps all its rows, and without a network, fetching several rows at a time
    /// saves nothing.
    int cache_rows = 100;
    /// How long a statement waits for the lock of another program, in seconds.
    int time_out_s = 30;
};

using recordset_settings = basic_recordset_settings<QString>;
/// The same as a constant next to the table's declaration.
using recordset_declaration = basic_recordset_settings<std::u16string_view>;

}  // namespace verdane
