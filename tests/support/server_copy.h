#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>

#include <vector>

#include "tests/support/outside_connection.h"

namespace verdane::testing {

/// The rows of a statement in the SQL of SQLite, run on a copy in memory of those tables of a server that the
/// statement names, at one moment. So all engines are compared by the same statements. `sqlite_master` names
/// all tables. Texts are copied as the bytes that the server holds.
std::vector<std::vector<QVariant>> rows_of_server(const outside_connection& server, const QString& statement);

/// The names of the tables of a server's database, in their order.
QStringList tables_of(const outside_connection& server);

}  // namespace verdane::testing
