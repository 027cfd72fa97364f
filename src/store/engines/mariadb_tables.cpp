#include "store/engines/mariadb_tables.h"

#include <QSqlQuery>
#include <QVariant>

#include "base/run_time_failure.h"
#include "store/schema.h"

namespace verdane {

using namespace Qt::StringLiterals;

QString mariadb_tables::ending(const table& declared)
{
    QString index;
    if (!declared.index_name.isEmpty())
        index = u", INDEX `%1` (`%2`)"_s.arg(declared.index_name, declared.indexed_columns.join(u"`, `"_s));
    // The collation compares texts character by character, trailing blanks included.
    return u", %1 BIGINT AUTO_INCREMENT PRIMARY KEY INVISIBLE%2) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 "
           u"COLLATE=utf8mb4_nopad_bin"_s.arg(row_column(), index);
}

QString mariadb_tables::question()
{
    // A view has no storage engine.
    return u"select c.table_name, c.column_name, c.column_key, c.extra, c.data_type, c.numeric_scale, "
           u"t.engine, e.transactions, c.column_type from information_schema.columns c "
           u"join information_schema.tables t using (table_schema, table_name) "
           u"left join information_schema.engines e on e.engine = t.engine "
           u"where c.table_schema = database() order by c.table_name, c.ordinal_position"_s;
}

mariadb_tables::mariadb_tables(QSqlQuery& columns)
{
    while (columns.next()) {
        const QString table = columns.value(0).toString().toLower();
        const QString column = columns.value(1).toString();
        const QString type = columns.value(4).toString();
        if (column == row_column())
            identified_ << table;
        // `select *` returns a column that identifies rows unless it is invisible.
        if (!columns.value(3).toString().contains(u"INVISIBLE", Qt::CaseInsensitive))
            columns_[table] << source_column{column, columns.value(8).toString(),
                                             content_in_mariadb(type, columns.value(5).toInt() > 0)};
        if (columns.value(2).toString() == u"PRI")
            keyed_ << table;
        if (columns.value(7).toString() == u"NO")
            engines_without_transactions_[table] = columns.value(6).toString();
    }
}

bool mariadb_tables::contains(QStringView table) const
{
    return columns_.contains(table.toString().toLower());
}

bool mariadb_tables::has_row_column(QStringView table) const
{
    return identified_.contains(table.toString().toLower());
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

QString mariadb_tables::row_column_script() const
{
    QString script;
    for (const table& declared : schema()) {
        if (has_row_column(declared.name))
            continue;
        // A table has one primary key, and a column with a counter needs a key.
        const bool keyed = keyed_.contains(declared.name.toLower());
        script += u"ALTER TABLE `%1` ADD COLUMN %2 BIGINT AUTO_INCREMENT %3 INVISIBLE;\n"_s.arg(
            declared.name, row_column(), keyed ? u"UNIQUE"_s : u"PRIMARY KEY"_s);
    }
    return script;
}

}  // namespace verdane
