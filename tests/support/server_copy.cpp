#include "tests/support/server_copy.h"

#include <QRegularExpression>
#include <QSet>

#include "tests/support/memory_database.h"
#include "tests/support/server_tables.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

const QString row_number = u"verdane_row"_s;

QStringList words_of(const QString& statement)
{
    static const QRegularExpression word(u"\\w+"_s);
    QSet<QString> words;
    for (auto found = word.globalMatch(statement.toLower()); found.hasNext();)
        words.insert(found.next().captured());
    return words.values();
}

QString affinity(const server_column& column)
{
    if (column.is_text())
        return u"TEXT"_s;
    if (column.type == u"double")
        return u"DOUBLE"_s;
    return column.is_whole_number() ? u"INTEGER"_s : QString();
}

/// The bytes of a text as digits, so that no driver changes them.
QString selected(const server_column& column)
{
    const QString name = u'`' + column.name + u'`';
    return column.is_text() ? u"hex(" + name + u')' : name;
}

QVariant copied_value(const server_column& column, const QVariant& value)
{
    if (value.isNull())
        return {};
    if (column.is_text())
        return QString::fromUtf8(QByteArray::fromHex(value.toByteArray()));
    return value;
}

/// A copy of tables of a server in memory. It may have tables of several databases, because a table is used
/// only if it is equal to that of the server.
class kept_copy {
public:
    /// Makes the named tables equal to those of the server at one moment. Names are in small letters, as the
    /// server has them.
    void refresh(const outside_connection& server, const QStringList& named);
    std::vector<std::vector<QVariant>> rows(const QString& statement) const;
    int tables_copied() const { return tables_copied_; }

private:
    struct copied_table {
        server_columns columns;
        QString fingerprint;
        bool operator==(const copied_table&) const = default;
    };

    void refresh(const outside_connection& server, const QString& table, const server_columns& columns);
    void remove_missing(const QHash<QString, server_columns>& present, const QStringList& names);
    void create_table(const QString& table, const server_columns& columns) const;
    void copy_rows(const outside_connection& server, const QString& table,
                   const server_columns& columns) const;

    memory_database copy_;
    QHash<QString, copied_table> tables_;
    int tables_copied_ = 0;
};

void kept_copy::refresh(const outside_connection& server, const QStringList& named)
{
    const bool all = named.contains(u"sqlite_master"_s);
    const QStringList names = all ? tables_of(server) : named;
    server.run_unchanged(u"start transaction with consistent snapshot"_s);
    copy_.run(u"begin"_s);
    const QHash<QString, server_columns> present = columns_of_tables(server, names);
    remove_missing(present, all ? tables_.keys() : named);
    for (auto table = present.begin(); table != present.end(); ++table)
        refresh(server, table.key(), table.value());
    copy_.run(u"commit"_s);
    server.run_unchanged(u"rollback"_s);
}

void kept_copy::refresh(const outside_connection& server, const QString& table, const server_columns& columns)
{
    const copied_table found{columns, fingerprint(server, table, columns)};
    if (tables_.value(table) == found)
        return;
    copy_.run(u"drop table if exists `%1`"_s.arg(table));
    create_table(table, columns);
    copy_rows(server, table, columns);
    tables_[table] = found;
    ++tables_copied_;
}

void kept_copy::remove_missing(const QHash<QString, server_columns>& present, const QStringList& names)
{
    for (const QString& table : names) {
        if (present.contains(table) || !tables_.contains(table))
            continue;
        copy_.run(u"drop table `%1`"_s.arg(table));
        tables_.remove(table);
    }
}

/// The column that identifies a row becomes the row number of the copy, which `select *` does not return.
void kept_copy::create_table(const QString& table, const server_columns& columns) const
{
    QStringList definitions;
    for (const server_column& column : columns) {
        if (column.name != row_number)
            definitions << u"`%1` %2"_s.arg(column.name, affinity(column));
    }
    copy_.run(u"create table `%1` (%2)"_s.arg(table, definitions.join(u", "_s)));
}

void kept_copy::copy_rows(const outside_connection& server, const QString& table,
                          const server_columns& columns) const
{
    QStringList targets;
    QStringList values;
    for (const server_column& column : columns) {
        targets << (column.name == row_number ? u"rowid"_s : u'`' + column.name + u'`');
        values << selected(column);
    }
    const QStringList places(targets.size(), u"?"_s);
    QSqlQuery insert = copy_.prepared(
        u"insert into `%1` (%2) values (%3)"_s.arg(table, targets.join(u','), places.join(u',')));
    const auto rows = server.rows_of_server(u"select %1 from `%2`"_s.arg(values.join(u", "_s), table));
    while (rows->next()) {
        int place = 0;
        for (const server_column& column : columns) {
            insert.bindValue(place, copied_value(column, rows->value(place)));
            ++place;
        }
        memory_database::run(insert);
    }
}

std::vector<std::vector<QVariant>> kept_copy::rows(const QString& statement) const
{
    QSqlQuery query = copy_.prepared(statement);
    memory_database::run(query);
    return all_rows(query);
}

kept_copy& copy_of_thread()
{
    static thread_local kept_copy copy;
    return copy;
}

}  // namespace

std::vector<std::vector<QVariant>> rows_of_server(const outside_connection& server, const QString& statement)
{
    kept_copy& copy = copy_of_thread();
    copy.refresh(server, words_of(statement));
    return copy.rows(statement);
}

int tables_copied()
{
    return copy_of_thread().tables_copied();
}

}  // namespace verdane::testing
