#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QStringView>

#include "store/engines/source_tables.h"

class QSqlQuery;

namespace verdane {

/// The tables of a SQLite file that is registered as a source.
class sqlite_tables {
public:
    /// The query for the columns of all tables, those that the engine computes included.
    static QString question();

    sqlite_tables() = default;
    /// From the rows of that query.
    explicit sqlite_tables(QSqlQuery& columns);

    /// The columns that `select *` returns. One that is the engine's number of a row fits no column that the
    /// program writes: another value there would be another row.
    const source_tables& columns() const { return columns_; }
    /// True if all columns of a table of the store have the defaults that the program declares.
    bool has_declared_defaults(QStringView table) const;

    /// Fails with `source_type` if a table of the store has no rows that `rowid` identifies; the details name
    /// the table and the reason.
    void check_row_numbers() const;

private:
    source_tables columns_;
    /// The tables with another default, in small letters.
    QStringList other_defaults_;
    /// Why `rowid` does not identify the rows of a table, by its name in small letters.
    QHash<QString, QString> without_row_number_;
};

}  // namespace verdane
