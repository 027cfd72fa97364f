#pragma once

#include <optional>

#include "base/run_time_failure.h"

/// The meaning of the error numbers of MariaDB and of its driver.
namespace verdane {

/// Of an error while the connection is opened. Any unknown one means that no server accepts it.
failure_kind kind_of_mariadb_opening(int code);

/// Of an error of the first query. No value if the server has run it and has no such function.
std::optional<failure_kind> kind_of_unusable_server(int code, const QString& text);

/// Of an error of a statement. `text` is empty after the connection was lost.
failure_kind kind_of_mariadb_error(int code, const QString& text);

}  // namespace verdane
