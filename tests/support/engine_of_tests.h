#pragma once

#include <QString>

#include "base/run_time_failure.h"
#include "store/store_location.h"

/// The engine that the stores of the tests are on, and the data sources of a test process.
namespace verdane::testing {

enum class test_engine { embedded, mariadb, sqlite_odbc };

/// From VERDANE_TEST_ENGINE, which `tools/with_engine` sets; embedded without it. Nothing else reads it.
test_engine engine_of_tests();

/// A place for a store that has no tables yet, on the engine of the tests: a file in `folder`, which is
/// empty, a file there with a source, or a database of the server with a source.
store_location new_store_place(const QString& folder);

/// The store that the program opens by itself, empty. On the embedded engine it is the file in the data
/// folder of the user, and no source is registered; on the others it is the source `Verdbase`.
store_location new_program_store();

/// Removes what `new_store_place` and `new_program_store` made outside the folder.
void remove_store_place(const store_location& store);

/// The store of the tests whose location has that name, for the arguments of a child process.
store_location store_called(const QString& name);

/// The source of the server's administrator.
QString administrator_source();

/// The kind of the failure of a statement that names a missing table or column: a server has words of its
/// own.
failure_kind missing_part_of_engine();

/// The file of a store on an engine that has one, or the database on a server.
QString file_of(const store_location& store);

}  // namespace verdane::testing
