#pragma once

#include <QString>

#include <string_view>

namespace verdane {

/// When the rows of a statement are read.
enum class row_reading {
    /// By `Open`.
    at_once,
    /// All of them by the first function that needs one. For a whole table that is opened although its rows
    /// may not be needed. An error in the statement is a failure of that function.
    when_needed,
    /// One by one, by `MoveNext`; only the current row is in memory. For a statement over all rounds. The
    /// rows are read-only, and all that needs other rows (any other move, counting, finding, `bof`, `empty`,
    /// `Requery`) fails with `misuse`.
    one_by_one
};

enum class search_direction { forward = 1, backward = -1 };

enum class cursor_type { dynamic, fixed };
enum class lock_type { optimistic, batch_optimistic };
enum class cursor_location { server, client };

/// The settings of a recordset, applied whenever it is opened. Each recordset of the catalogue is declared
/// next to its table. Cursor, location and cache size are listed for completeness: they have no effect, for
/// the reason given at each.
template <typename Text>
struct basic_recordset_settings {
    Text name;
    Text source;
    /// No effect: both kinds of cursor read their rows once, and later rows after `Requery`. Only one program
    /// changes a store, so a dynamic cursor would find no changes of others.
    cursor_type cursor = cursor_type::fixed;
    lock_type lock = lock_type::optimistic;
    /// No effect: the rows that were read are in the memory of this process on every engine.
    cursor_location location = cursor_location::server;
    /// No effect: a recordset keeps all rows that it has read, and the engines decide how many they fetch at
    /// a time.
    int cache_rows = 100;
    /// How long a statement waits for the lock of another program, in seconds.
    int time_out_s = 30;
};

using recordset_settings = basic_recordset_settings<QString>;
/// The same as a constant next to the table's declaration.
using recordset_declaration = basic_recordset_settings<std::u16string_view>;

}  // namespace verdane
