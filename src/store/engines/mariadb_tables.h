#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QStringView>

#include "store/engines/source_tables.h"

class QSqlQuery;

namespace verdane {

struct table;

/// The tables of a database on a MariaDB server, and the column that identifies a row in them. It is
/// invisible: `select *` does not return it.
class mariadb_tables {
public:
    static QString row_column();

    /// Compares texts character by character, trailing blanks included.
    static QString collation();

    /// What follows the columns in the statement that creates a table with that column.
    static QString ending(const table& declared);

    /// The query for the columns of all tables of the database.
    static QString question();

    mariadb_tables() = default;
    /// From the rows of that query.
    explicit mariadb_tables(QSqlQuery& columns);

    /// The columns that `select *` returns.
    const source_tables& columns() const { return columns_; }
    bool contains(QStringView table) const;
    /// True for a column that the server numbers itself and that is unique. Another column of that name does
    /// not identify rows.
    bool has_row_column(QStringView table) const;
    /// True if the server returns the rows of a table in the order in which they were inserted. Without a
    /// column that identifies a row it returns them in the order of the primary key, if there is one.
    bool keeps_order(QStringView table) const;
    /// True if all columns of a table of the store have the defaults that the program declares.
    bool has_declared_defaults(QStringView table) const;
    /// True if a table of the store has a text with another collation than the tables of the program. Such a
    /// text may be compared without regard to case, accents or trailing blanks.
    bool has_other_collations() const { return other_collations_; }

    /// Fails with `source_storage` if a table of the store has a storage engine without transactions, which
    /// could not undo the first part of a commit that fails, or is a view; the details name the tables.
    void check_transactions() const;

    /// Fails with `source_type` if the keys of rounds have different collations in tables that statements
    /// join: the server refuses to compare some of them. The details name the tables and the collations.
    void check_joined_keys() const;

    /// Statements that add the column to the tables of the store that lack it, instead of another column of
    /// that name; empty if none does. A table in which the server numbers another column, or whose
    /// primary key has several columns and one of that name, is left out.
    QString row_column_script() const;

private:
    /// Columns of a table that matter for a column that identifies rows.
    struct keys {
        QStringList primary;
        /// The column that the server numbers.
        QString numbered;
        bool has_row_column = false;
        bool row_column_is_unique = false;

        void add(const QString& column, const QString& key, const QString& extra);
        bool identify_rows() const;
        bool keep_order() const;
        bool has_other_primary_key() const;
        bool allow_row_column() const;
    };

    source_tables columns_;
    bool other_collations_ = false;
    /// The collation of the key of a round, by the name of the table in small letters.
    QHash<QString, QString> key_collations_;
    /// The tables with another default, in small letters.
    QStringList other_defaults_;
    /// By the name of the table in small letters.
    QHash<QString, keys> keys_;
    /// The storage engines of tables that have no transactions, or the word for a view.
    QHash<QString, QString> engines_without_transactions_;
};

}  // namespace verdane
