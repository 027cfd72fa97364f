#pragma once

#include <QString>

namespace verdane {

class Connection1;
struct column;

/// The type of a column in the statement that creates its table.
QString declared_type(const column& column);

/// Creates every table of `schema`, its fixed rows and the indexes in one transaction. After a failure none
/// of them exists.
void create_tables(Connection1& connection);

}  // namespace verdane
