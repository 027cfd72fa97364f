#pragma once

#include <QString>
#include <QVariant>

#include <vector>

#include "tests/support/outside_connection.h"

namespace verdane::testing {

/// The rows of a statement in the SQL of SQLite, run on a copy in memory of those tables of a server that the
/// statement names, at one moment. So all engines are compared by the same statements. `sqlite_master` names
/// all tables. Texts are copied as the bytes that the server stores.
///
/// Each thread keeps its copy. A table is copied again only if its columns or rows have changed since.
std::vector<std::vector<QVariant>> rows_of_server(const outside_connection& server, const QString& statement);

/// How many tables this thread has copied.
int tables_copied();

}  // namespace verdane::testing
