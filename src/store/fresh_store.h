#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>

#include "store/schema.h"

namespace verdane {

class Connection1;

/// The statement that creates a table.
QString creation_statement(const table& table);

/// The statements that create the indexes of all tables. No index is unique: the program itself checks that a
/// key is used once, and the rows of a new round have no key yet.
QStringList index_statements();

/// The value of a column in a fixed row, which counts from 0.
QVariant value_of_fixed_row(const column& column, int row);

/// Creates every table, its fixed rows and the indexes in one transaction. After a failure none of them
/// exists.
void create_tables(Connection1& connection);

}  // namespace verdane
