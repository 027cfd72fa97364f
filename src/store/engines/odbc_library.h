#pragma once

#include <QtGlobal>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

#include <sql.h>
#include <sqlext.h>
#include <sqlucode.h>

namespace verdane {

/// The functions of the ODBC driver manager with which rows are read. The library is loaded by the first
/// call of `odbc_library::loaded`, so that a program on the embedded engine does not load it.
struct odbc_library {
    decltype(&SQLAllocHandle) alloc_handle = nullptr;
    decltype(&SQLFreeHandle) free_handle = nullptr;
    decltype(&SQLExecDirectW) exec_direct = nullptr;
    decltype(&SQLNumResultCols) num_result_columns = nullptr;
    decltype(&SQLDescribeColW) describe_column = nullptr;
    decltype(&SQLBindCol) bind_column = nullptr;
    decltype(&SQLFetch) fetch = nullptr;
    decltype(&SQLGetData) get_data = nullptr;
    decltype(&SQLGetDiagRecW) diagnostic = nullptr;

    /// Fails with `store_unreachable` if the library is not installed or lacks one of the functions.
    static const odbc_library& loaded();
};

}  // namespace verdane
