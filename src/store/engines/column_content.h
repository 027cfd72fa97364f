#pragma once

#include <QString>

#include "store/tables/columns.h"

/// Which values a column of a registered source stores unchanged, by the name of its type.
namespace verdane {

enum class column_content {
    texts,
    counts,         ///< whole numbers of 16 bits
    whole_numbers,  ///< of 32 bits
    numbers,        ///< with decimals
    anything,
    other  ///< dates and the numbers of rows, for example
};

/// Of a type of MariaDB, without its length (`varchar`, `decimal`). `rounds` is true if the type has a fixed
/// number of decimals.
column_content content_in_mariadb(const QString& type, bool rounds);

/// Of a declared type of SQLite, by the rules with which the engine derives the affinity of a column, and by
/// which its ODBC driver reads whole numbers.
column_content content_in_sqlite(const QString& type);

/// True if a column with that content stores every value of a column of the program.
bool fits(column_content content, column_type type);

}  // namespace verdane
