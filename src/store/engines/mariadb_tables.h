#pragma once

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringView>

#include "store/engines/source_tables.h"

class QSqlQuery;

namespace verdane {

struct table;

/// The tables of a database on a MariaDB server, and the column that identifies a row in them. It is
/// invisible: `select *` does not return it.
class mariadb_tables {
public:
    static QString row_column() { return QStringLiteral("verdane_row"); }

    /// What follows the columns in the statement that creates a table with that column.
    static QString ending(const table& declared);

    /// The question for the columns of all tables of the database.
    static QString question();

    mariadb_tables() = default;
    /// From the rows of that question.
    explicit mariadb_tables(QSqlQuery& columns);

    /// The columns that `select *` returns.
    const source_tables& columns() const { return columns_; }
    bool contains(QStringView table) const;
    bool has_row_column(QStringView table) const;

    /// Fails with `source_storage` if a table of the store has a storage engine without transactions, which
    /// could not undo the first part of a commit that fails; the details name the tables.
    void check_transactions() const;

    /// Statements that add the column to the tables of the store that lack it; empty if none does.
    QString row_column_script() const;

private:
    source_tables columns_;
    /// The tables with that column, and those with a primary key, in small letters.
    QSet<QString> identified_;
    QSet<QString> keyed_;
    /// The storage engines of tables that have no transactions.
    QHash<QString, QString> engines_without_transactions_;
};

}  // namespace verdane
