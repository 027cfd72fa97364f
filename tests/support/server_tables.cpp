#include "tests/support/server_tables.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

/// The value of a column as text. Texts are between quotes, so their ends and Null are distinct.
QString hashed(const server_column& column)
{
    const QString name = u'`' + column.name + u'`';
    return column.is_text() ? u"quote(%1)"_s.arg(name) : u"ifnull(%1, 'null')"_s.arg(name);
}

}  // namespace

QStringList tables_of(const outside_connection& server)
{
    QStringList names;
    QSqlQuery query = server.run_unchanged(
        u"select table_name from information_schema.tables where table_schema = database() order by 1"_s);
    while (query.next())
        names << query.value(0).toString();
    return names;
}

QHash<QString, server_columns> columns_of_tables(const outside_connection& server, const QStringList& names)
{
    QHash<QString, server_columns> tables;
    const auto rows =
        server.rows_of_server(u"select table_name, column_name, data_type from information_schema.columns "
                              "where table_schema = database() and table_name in ('%1') "
                              "order by table_name, ordinal_position"_s.arg(names.join(u"', '"_s)));
    while (rows->next())
        tables[rows->value(0).toString()].push_back(
            {rows->value(1).toString(), rows->value(2).toString().toLower()});
    return tables;
}

QString fingerprint(const outside_connection& server, const QString& table, const server_columns& columns)
{
    QStringList values;
    for (const server_column& column : columns)
        values << hashed(column);
    QSqlQuery query = server.run_unchanged(
        u"select concat(count(*), ' ', sum(cast(conv(left(md5(concat_ws(',', %1)), 15), 16, 10) as "
        "unsigned))) from `%2`"_s.arg(values.join(u", "_s), table));
    return all_rows(query)[0][0].toString();
}

}  // namespace verdane::testing
