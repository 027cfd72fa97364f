#include "store/engines/mariadb_tables.h"

#include <QSqlQuery>
#include <QVariant>

#include <algorithm>

#include "base/run_time_failure.h"
#include "store/schema.h"

namespace verdane {

using namespace Qt::StringLiterals;

QString mariadb_tables::row_column()
{
    return u"verdane_row"_s;
}

QString mariadb_tables::collation()
{
    return u"utf8mb4_nopad_bin"_s;
}

QString mariadb_tables::ending(const table& declared)
{
    QString index;
    if (!declared.index_name.isEmpty())
        index = u", INDEX `%1` (`%2`)"_s.arg(declared.index_name, declared.indexed_columns.join(u"`, `"_s));
    return u", %1 BIGINT AUTO_INCREMENT PRIMARY KEY INVISIBLE%2) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 "
           u"COLLATE=%3"_s.arg(row_column(), index, collation());
}

QString mariadb_tables::question()
{
    // A view has no storage engine and no rows of its own.
    return u"select c.table_name, c.column_name, c.column_key, c.extra, c.data_type, c.numeric_scale, "
           u"coalesce(t.engine, t.table_type), coalesce(e.transactions, 'NO'), c.column_type, "
           u"c.collation_name, c.column_default, c.is_nullable, c.character_maximum_length from "
           u"information_schema.columns c "
           u"join information_schema.tables t using (table_schema, table_name) "
           u"left join information_schema.engines e on e.engine = t.engine "
           u"where c.table_schema = database() order by c.table_name, c.ordinal_position"_s;
}

namespace {

/// The key of a round, in every table that has one.
const QString key_column = u"date"_s;

bool is_numbered(const QString& extra)
{
    return extra.contains(u"auto_increment", Qt::CaseInsensitive);
}

/// From a row of the query for the columns. The server numbers a row instead of storing Null.
bool refuses_null(const QSqlQuery& row)
{
    return row.value(11).toString() == u"NO" && row.value(2).toString() != u"PRI" &&
           !is_numbered(row.value(3).toString());
}

source_column column_of(const QSqlQuery& row)
{
    const bool rounds = row.value(5).toInt() > 0;
    return {row.value(1).toString(),
            row.value(8).toString(),
            content_in_mariadb(row.value(4).toString(), rounds),
            refuses_null(row),
            row.value(10).toString(),
            row.value(3).toString().contains(u"GENERATED", Qt::CaseInsensitive),
            row.value(12).toLongLong()};
}

}  // namespace

mariadb_tables::mariadb_tables(QSqlQuery& columns)
{
    while (columns.next()) {
        const QString table = columns.value(0).toString().toLower();
        const QString column = columns.value(1).toString();
        const QString extra = columns.value(3).toString();
        // `select *` returns a column that identifies rows unless it is invisible.
        if (!extra.contains(u"INVISIBLE", Qt::CaseInsensitive))
            columns_[table] << column_of(columns);
        keys_[table].add(column, columns.value(2).toString(), extra);
        if (columns.value(7).toString() == u"NO")
            engines_without_transactions_[table] = columns.value(6).toString();
        const QString of_column = columns.value(9).toString();
        other_collations_ = other_collations_ || (find_table(table) != nullptr && !of_column.isEmpty() &&
                                                  of_column != collation());
        if (column.compare(key_column, Qt::CaseInsensitive) == 0)
            key_collations_[table] = of_column;
    }
    other_defaults_ = tables_with_other_defaults(columns_);
}

void mariadb_tables::keys::add(const QString& column, const QString& key, const QString& extra)
{
    if (key == u"PRI")
        primary << column;
    if (is_numbered(extra))
        numbered = column;
    if (column != row_column())
        return;
    has_row_column = true;
    row_column_is_unique = key == u"UNI";
}

bool mariadb_tables::keys::identify_rows() const
{
    // A column of a primary key of several columns is not unique.
    return numbered == row_column() && (row_column_is_unique || primary == QStringList{row_column()});
}

bool mariadb_tables::keys::keep_order() const
{
    return identify_rows() || primary.isEmpty() || primary == QStringList{numbered};
}

bool mariadb_tables::keys::has_other_primary_key() const
{
    return std::any_of(primary.begin(), primary.end(),
                       [](const QString& column) { return column != row_column(); });
}

bool mariadb_tables::keys::allow_row_column() const
{
    // The server numbers one column of a table, and a column of a key of several columns cannot be dropped.
    const bool numbers_another = !numbered.isEmpty() && numbered != row_column();
    return !numbers_another && !(primary.size() > 1 && primary.contains(row_column()));
}

bool mariadb_tables::contains(QStringView table) const
{
    return columns_.contains(table.toString().toLower());
}

bool mariadb_tables::has_row_column(QStringView table) const
{
    return keys_.value(table.toString().toLower()).identify_rows();
}

bool mariadb_tables::keeps_order(QStringView table) const
{
    return keys_.value(table.toString().toLower()).keep_order();
}

bool mariadb_tables::has_declared_defaults(QStringView table) const
{
    return !other_defaults_.contains(table.toString().toLower());
}

void mariadb_tables::check_transactions() const
{
    QStringList tables;
    for (const table& declared : schema()) {
        const QString engine = engines_without_transactions_.value(declared.name.toLower());
        if (!engine.isEmpty())
            tables << declared.name + u" (" + engine + u')';
    }
    if (!tables.isEmpty())
        throw run_time_failure(failure_kind::source_storage, tables.join(u", "_s));
}

void mariadb_tables::check_joined_keys() const
{
    const QString rounds = u"games2"_s;
    const QString expected = key_collations_.value(rounds);
    for (const QString& joined : {u"cost"_s, u"stat_rounds"_s}) {
        const QString found = key_collations_.value(joined);
        if (found != expected)
            throw run_time_failure(
                failure_kind::source_type,
                u"%1.%2: COLLATE %3 ≠ %4 (%5.%2)"_s.arg(joined, key_column, found, expected, rounds));
    }
}

QString mariadb_tables::row_column_script() const
{
    QString script;
    for (const table& declared : schema()) {
        const keys of_table = keys_.value(declared.name.toLower());
        if (of_table.identify_rows() || !of_table.allow_row_column())
            continue;
        if (of_table.has_row_column)
            script += u"ALTER TABLE `%1` DROP COLUMN %2;\n"_s.arg(declared.name, row_column());
        script += u"ALTER TABLE `%1` ADD COLUMN %2 BIGINT AUTO_INCREMENT %3 INVISIBLE;\n"_s.arg(
            declared.name, row_column(), of_table.has_other_primary_key() ? u"UNIQUE"_s : u"PRIMARY KEY"_s);
    }
    return script;
}

}  // namespace verdane
