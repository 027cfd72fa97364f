#pragma once

#include "store/Recordset.h"
#include "tests/support/failures.h"

namespace verdane::testing {

/// The number of columns of an open recordset.
inline int column_count(Recordset& rows)
{
    int count = 0;
    while (!failure_of([&] { rows.Fields(count); }))
        ++count;
    return count;
}

}  // namespace verdane::testing
