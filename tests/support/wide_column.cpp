#include "tests/support/wide_column.h"

#include "tests/support/outside_connection.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

void widen_column(const store_location& store, const QString& table, const QString& column)
{
    const outside_connection connection(store);
    if (connection.is_server())
        connection.run_unchanged(u"alter table %1 modify %2 bigint"_s.arg(table, column));
}

}  // namespace verdane::testing
