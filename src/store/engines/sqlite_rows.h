#pragma once

#include "store/engines/result_rows.h"

struct sqlite3_stmt;

namespace verdane {

/// The rows of a statement of the embedded engine. The toolkit runs the statement and ends it; the values are
/// read from the engine one by one, because the toolkit first copies all values of a row into its own cache.
class sqlite_rows : public query_rows {
public:
    using query_rows::query_rows;

    bool next() override;
    QVariant value(int column) const override;

private:
    /// The statement in the engine; null after the connection was closed.
    sqlite3_stmt* statement() const;
    /// Moves to the first row.
    bool first();
    /// Moves from the current row to the next one.
    bool step();

    bool started_ = false;
    /// Set while there is a current row.
    sqlite3_stmt* on_row_ = nullptr;
};

}  // namespace verdane
