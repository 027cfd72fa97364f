#include "store/engine_handle.h"

#include <QSqlDriver>
#include <QVariant>

#include <cstring>

#include "base/run_time_failure.h"

namespace verdane {

using namespace Qt::StringLiterals;

sqlite3* engine_handle(const QSqlDatabase& database)
{
    const QVariant handle = database.driver()->handle();
    if (!handle.isValid() || std::strcmp(handle.typeName(), "sqlite3*") != 0)
        throw run_time_failure(failure_kind::store_unreachable,
                               u"%1: no handle of the embedded engine"_s.arg(database.databaseName()));
    return *static_cast<sqlite3* const*>(handle.constData());
}

}  // namespace verdane
