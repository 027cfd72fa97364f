#pragma once

#include "base/counts.h"
#include "store/DataEnvironment1.h"
#include "tests/support/reader.h"
#include "tests/support/store_folder.h"

namespace verdane::testing {

/// A fresh store with one course and two fresh rounds on it, the five recordsets open and standing on
/// the first round. The pars are 4, but 3 on hole 3 and 5 on hole 5; rating 70.5, slope 130.
class round_in_store {
public:
    static const QString key;

    round_in_store();

    /// Writes the current rows, so that another connection sees them.
    void commit();
    /// Sets the strokes of a hole in the current row of `rsgames`, without the program's arithmetic.
    void set_strokes(int hole, int long_shots, int approach, int putts);
    /// A value of the first round's row of a table, as another connection sees it.
    QVariant stored(const QString& table, const QString& column) const;

    DataEnvironment1& store = data_environment();

private:
    void lay_down() const;
    static void open(Recordset& recordset);

    store_folder folder_;
};

}  // namespace verdane::testing
