#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>

#include "store/schema.h"

namespace verdane {

class Connection1;

/// The statement that creates a table. Names stand between back quotes, which both engines take;
/// some of the columns are reserved words in one of them.
QString creation_statement(const table& table);

/// The statements that create the indexes.
QStringList index_statements();

/// What a fixed row of a fresh table holds in a column; `row` counts from 0.
QVariant fixed_value(const table& table, int row, int ordinal);

/// Lays down every table, its fixed rows and the indexes in one transaction: what is found at the
/// next start is either all of it or nothing.
void lay_down(Connection1& connection);

}  // namespace verdane
