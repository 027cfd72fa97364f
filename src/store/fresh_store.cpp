#include "store/fresh_store.h"

#include "store/Connection1.h"

#include <QSqlQuery>

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

QString engine_type(column_type type)
{
    switch (type) {
    case column_type::count:
        return u"SMALLINT"_s;
    case column_type::amount:
        return u"INTEGER"_s;
    case column_type::real:
        return u"DOUBLE"_s;
    case column_type::yes_no:
        return u"BOOLEAN"_s;
    case column_type::text:
    case column_type::any:
        break;
    }
    return u"TEXT"_s;
}

/// Round keys are indexed, and an index wants a text of declared length on some engines.
QString declared_type(const column& column)
{
    if (column.name == u"date")
        return u"VARCHAR(14)"_s;
    return engine_type(column.type);
}

QString column_definition(const column& column)
{
    QString definition = u'`' + column.name + u"` " + declared_type(column);
    if (!column.default_value.isNull())
        definition += u" DEFAULT " + QString::number(column.default_value.toInt());
    return definition;
}

/// The first column of a report grid tells a template which line it is on.
bool is_line_number(const column& column)
{
    return column.name == u"stat_line" || column.name == u"put_line" || column.name == u"card_row";
}

/// Texts of which the statistics themselves say that a row without a value holds one blank.
bool is_blank_text(const column& column)
{
    return column.name.startsWith(u"mean_") || column.name == u"weighted_mean" ||
           column.name == u"rating_text" || column.name == u"average_mark";
}

QVariant fixed_text(const table& table, int row, int ordinal)
{
    if (table.name == u"sticknames")
        return fresh_club_names().at(ordinal);
    if (table.name == u"stat_sticks" && ordinal == 0)
        return fresh_club_names().at(row);
    if (table.name == u"stat_sticks" && ordinal <= 9)
        return u"0"_s;
    const auto& column = table.columns[static_cast<std::size_t>(ordinal)];
    return is_blank_text(column) ? u" "_s : u""_s;
}

QString insertion_statement(const table& table)
{
    const auto count = static_cast<int>(table.columns.size());
    const QStringList places(count, u"?"_s);
    return u"INSERT INTO `" + table.name + u"` VALUES (" + places.join(u',') + u')';
}

void insert_fixed_rows(Connection1& connection, const table& table)
{
    if (table.fixed_rows == 0)
        return;
    QSqlQuery query(connection.database());
    const QString statement = insertion_statement(table);
    if (!query.prepare(statement))
        throw store_failure(query.lastError(), statement);
    for (int row = 0; row < table.fixed_rows; ++row) {
        for (int ordinal = 0; ordinal < static_cast<int>(table.columns.size()); ++ordinal)
            query.bindValue(ordinal, fixed_value(table, row, ordinal));
        if (!query.exec())
            throw store_failure(query.lastError(), statement);
    }
}

void lay_down_tables(Connection1& connection)
{
    for (const table& table : schema()) {
        connection.Execute(creation_statement(table));
        insert_fixed_rows(connection, table);
    }
    for (const QString& statement : index_statements())
        connection.Execute(statement);
}

}  // namespace

QString creation_statement(const table& table)
{
    QStringList definitions;
    for (const column& column : table.columns)
        definitions += column_definition(column);
    return u"CREATE TABLE `" + table.name + u"` (" + definitions.join(u", "_s) + u')';
}

QStringList index_statements()
{
    // None of them is unique: that a key is used once is the program's affair, and a round in the
    // making has rows without a key. The shots are by far the longest table, and every window and
    // statistic asks for one hole's shots in order; the others serve joins and deletions by key.
    return {u"CREATE INDEX `games_by_date` ON `games` (`date`)"_s,
            u"CREATE INDEX `games2_by_date` ON `games2` (`date`)"_s,
            u"CREATE INDEX `cost_by_date` ON `cost` (`date`)"_s,
            u"CREATE INDEX `shots_by_hole` ON `Stat_rounds` (`date`, `hole`, `shot`)"_s};
}

QVariant fixed_value(const table& table, int row, int ordinal)
{
    const auto& column = table.columns[static_cast<std::size_t>(ordinal)];
    switch (column.type) {
    case column_type::text:
        return fixed_text(table, row, ordinal);
    case column_type::any:
        // The lines of `stats` are counted from 0, those of the other grids from 1.
        if (is_line_number(column))
            return QString::number(table.name == u"stats" ? row : row + 1);
        return {};
    default:
        return 0;
    }
}

void lay_down(Connection1& connection)
{
    connection.Execute(u"BEGIN IMMEDIATE"_s);
    try {
        lay_down_tables(connection);
        connection.Execute(u"COMMIT"_s);
    } catch (...) {
        // The engine may have ended the transaction by itself; that it is over is all that counts.
        QSqlQuery(connection.database()).exec(u"ROLLBACK"_s);
        throw;
    }
}

}  // namespace verdane
