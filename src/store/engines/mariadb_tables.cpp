#include "store/engines/mariadb_tables.h"

#include <QSqlQuery>
#include <QVariant>

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
    return u"select table_name, column_name, column_key, extra from information_schema.columns "
           u"where table_schema = database() order by table_name, ordinal_position"_s;
}

mariadb_tables::mariadb_tables(QSqlQuery& columns)
{
    while (columns.next()) {
        const QString table = columns.value(0).toString().toLower();
        const QString column = columns.value(1).toString();
        if (column == row_column())
            identified_ << table;
        // `select *` returns a column that identifies rows unless it is invisible.
        if (!columns.value(3).toString().contains(u"INVISIBLE", Qt::CaseInsensitive))
            columns_[table] << column;
        if (columns.value(2).toString() == u"PRI")
            keyed_ << table;
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
