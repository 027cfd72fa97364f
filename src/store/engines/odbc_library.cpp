#include "store/engines/odbc_library.h"

#include <QLibrary>

#include "base/run_time_failure.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

QLibrary& driver_manager()
{
#ifdef Q_OS_WIN
    static QLibrary library(u"odbc32"_s);
#else
    static QLibrary library(u"odbc"_s, 2);
#endif
    return library;
}

template <typename Function>
void resolve(Function& function, const char* name)
{
    function = reinterpret_cast<Function>(driver_manager().resolve(name));
    if (function == nullptr)
        throw run_time_failure(failure_kind::store_unreachable,
                               u"%1: %2: %3"_s.arg(driver_manager().fileName(), QString::fromLatin1(name),
                                                   driver_manager().errorString()));
}

odbc_library load()
{
    odbc_library library;
    resolve(library.alloc_handle, "SQLAllocHandle");
    resolve(library.free_handle, "SQLFreeHandle");
    resolve(library.exec_direct, "SQLExecDirectW");
    resolve(library.num_result_columns, "SQLNumResultCols");
    resolve(library.describe_column, "SQLDescribeColW");
    resolve(library.bind_column, "SQLBindCol");
    resolve(library.fetch, "SQLFetch");
    resolve(library.get_data, "SQLGetData");
    resolve(library.diagnostic, "SQLGetDiagRecW");
    return library;
}

}  // namespace

const odbc_library& odbc_library::loaded()
{
    static const odbc_library library = load();
    return library;
}

}  // namespace verdane
