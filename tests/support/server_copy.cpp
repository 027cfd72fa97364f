#include "tests/support/server_copy.h"

#include <QRegularExpression>
#include <QSet>
#include <QSqlError>
#include <QSqlRecord>
#include <QUuid>

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

const QString row_number = u"verdane_row"_s;

struct copied_column {
    QString name;
    QString type;
    bool is_text() const { return type == u"text" || type == u"varchar"; }
};

using copied_columns = std::vector<copied_column>;

QSet<QString> words_of(const QString& statement)
{
    static const QRegularExpression word(u"\\w+"_s);
    QSet<QString> words;
    for (auto found = word.globalMatch(statement.toLower()); found.hasNext();)
        words.insert(found.next().captured());
    return words;
}

copied_columns columns_of(const outside_connection& server, const QString& table)
{
    copied_columns columns;
    QSqlQuery query = server.run_unchanged(
        u"select column_name, data_type from information_schema.columns where table_schema = database() and "
        "table_name = '%1' order by ordinal_position"_s.arg(table));
    while (query.next())
        columns.push_back({query.value(0).toString(), query.value(1).toString().toLower()});
    return columns;
}

QString affinity(const copied_column& column)
{
    if (column.is_text())
        return u"TEXT"_s;
    if (column.type == u"double")
        return u"DOUBLE"_s;
    return column.type.endsWith(u"int") ? u"INTEGER"_s : QString();
}

/// The bytes of a text, because QODBC does not show a text with a zero in it as it is stored.
QString selected(const copied_column& column)
{
    const QString name = u'`' + column.name + u'`';
    return column.is_text() ? u"hex(" + name + u')' : name;
}

QVariant copied_value(const copied_column& column, const QVariant& value)
{
    if (value.isNull())
        return {};
    if (column.is_text())
        return QString::fromUtf8(QByteArray::fromHex(value.toByteArray()));
    if (column.type.endsWith(u"int"))
        return value.toLongLong();
    return value;
}

/// An in-memory database of SQLite.
class memory {
public:
    memory() : name_(QUuid::createUuid().toString())
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s, name_);
        database.setDatabaseName(u":memory:"_s);
        database.open();
    }
    ~memory() { QSqlDatabase::removeDatabase(name_); }
    memory(const memory&) = delete;
    memory& operator=(const memory&) = delete;

    QSqlQuery prepared(const QString& statement) const
    {
        QSqlQuery query(QSqlDatabase::database(name_));
        if (!query.prepare(statement))
            end(query);
        return query;
    }
    static void run(QSqlQuery& query)
    {
        if (!query.exec())
            end(query);
    }
    void run(const QString& statement) const
    {
        QSqlQuery query = prepared(statement);
        run(query);
    }

private:
    static void end(const QSqlQuery& query)
    {
        qFatal("%s: %s", qUtf8Printable(query.lastQuery()), qUtf8Printable(query.lastError().text()));
    }

    QString name_;
};

/// The column that identifies a row becomes the row number of the copy, which `select *` does not return.
void create_table(const memory& copy, const QString& table, const copied_columns& columns)
{
    QStringList definitions;
    for (const copied_column& column : columns) {
        if (column.name != row_number)
            definitions << u"`%1` %2"_s.arg(column.name, affinity(column));
    }
    copy.run(u"create table `%1` (%2)"_s.arg(table, definitions.join(u", "_s)));
}

void copy_rows(const memory& copy, const outside_connection& server, const QString& table,
               const copied_columns& columns)
{
    QStringList targets;
    QStringList values;
    for (const copied_column& column : columns) {
        targets << (column.name == row_number ? u"rowid"_s : u'`' + column.name + u'`');
        values << selected(column);
    }
    const QStringList places(targets.size(), u"?"_s);
    QSqlQuery insert = copy.prepared(
        u"insert into `%1` (%2) values (%3)"_s.arg(table, targets.join(u','), places.join(u',')));
    QSqlQuery rows = server.run_unchanged(u"select %1 from `%2`"_s.arg(values.join(u", "_s), table));
    while (rows.next()) {
        int place = 0;
        for (const copied_column& column : columns) {
            insert.bindValue(place, copied_value(column, rows.value(place)));
            ++place;
        }
        memory::run(insert);
    }
}

void copy_tables(const memory& copy, const outside_connection& server, const QString& statement)
{
    const QSet<QString> words = words_of(statement);
    const bool all = words.contains(u"sqlite_master"_s);
    server.run_unchanged(u"start transaction with consistent snapshot"_s);
    copy.run(u"begin"_s);
    for (const QString& table : tables_of(server)) {
        if (!all && !words.contains(table.toLower()))
            continue;
        const copied_columns columns = columns_of(server, table);
        create_table(copy, table, columns);
        copy_rows(copy, server, table, columns);
    }
    copy.run(u"commit"_s);
    server.run_unchanged(u"rollback"_s);
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

std::vector<std::vector<QVariant>> rows_of_server(const outside_connection& server, const QString& statement)
{
    const memory copy;
    copy_tables(copy, server, statement);
    QSqlQuery query = copy.prepared(statement);
    memory::run(query);
    return all_rows(query);
}

}  // namespace verdane::testing
