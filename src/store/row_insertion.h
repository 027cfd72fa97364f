#pragma once

#include <QVariant>

#include <vector>

#include "store/prepared_statements.h"
#include "store/schema.h"

namespace verdane {

class store_engine;

/// Collects rows of a table and inserts them in their order, many by one statement: a server takes as long
/// for each statement as for many rows.
class row_insertion {
public:
    /// Both arguments must exist as long as this object.
    row_insertion(store_engine& to, const table& filled);

    /// Adds a row with a value for each column of the table, in their order. Fails with the kind that fits
    /// the engine's error.
    void add(const std::vector<QVariant>& values);

    /// Inserts the rows that remain, and fails like `add`. Rows that were not inserted before the end of the
    /// lifetime are dropped.
    void finish();

private:
    store_engine& to_;
    const table& filled_;
    const int most_rows_;
    statement_with_values statement_;
    int rows_ = 0;
};

/// The values of a new row to which nothing was written.
std::vector<QVariant> new_row(const table& filled);

}  // namespace verdane
