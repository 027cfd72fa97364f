#pragma once

#include <QString>

#include "store/tables/columns.h"

/// Which values a column of a registered source stores unchanged, by the name of its type.
namespace verdane {

enum class column_content {
    texts,
    whole_numbers,
    numbers,  ///< with decimals
    anything,
    other  ///< dates, for example
};

/// Of a type of MariaDB, without its length (`varchar`, `decimal`). `decimals` is the number of decimals of
/// type `decimal`.
column_content content_in_mariadb(const QString& type, int decimals);

/// Of a declared type of SQLite, by the rules with which the engine derives the affinity of a column.
column_content content_in_sqlite(const QString& type);

/// True if a column with that content stores every value of a column of the program.
bool fits(column_content content, column_type type);

}  // namespace verdane
