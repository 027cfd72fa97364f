#pragma once

#include "base/counts.h"
#include "store/DataEnvironment1.h"
#include "tests/support/stored_diary.h"

namespace verdane::testing {

/// A new store with two courses and two rounds without strokes on the second one. The five recordsets are
/// open on the first round and its course. The pars are 4, but 3 on hole 3 and 5 on hole 5; rating 70.5,
/// slope 130.
class round_in_store {
public:
    static const QString key;

    round_in_store();

    void commit();
    /// Sets the strokes of a hole in the current row of `rsgames`, by the names of the columns.
    void set_strokes(int hole, int long_shots, int approach, int putts);
    /// A committed value of the first round's row of a table.
    QVariant stored(const QString& table, const QString& column) const;

    DataEnvironment1& store = data_environment();

private:
    void add_rows() const;
    static void open(Recordset& recordset);

    stored_diary diary_;
};

}  // namespace verdane::testing
