#include "store/fresh_store.h"

#include <QSqlQuery>

#include "store/engines/engine.h"
#include "store/row_insertion.h"
#include "store/schema.h"
#include "store/tables/golf_bag.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

QString column_definition(const column& column)
{
    QString definition = in_back_quotes(column.name) + u' ' + declared_type(column);
    if (!column.default_value.isNull())
        definition += u" DEFAULT " + QString::number(column.default_value.toInt());
    return definition;
}

QString creation_statement(const store_engine& engine, const table& table)
{
    QStringList definitions;
    for (const column& column : table.columns)
        definitions += column_definition(column);
    return u"CREATE TABLE " + in_back_quotes(table.name) + u" (" + definitions.join(u", "_s) +
           engine.table_ending(table);
}

QVariant value_by_type(column_type type)
{
    switch (type) {
    case column_type::text:
        return u""_s;
    case column_type::any:
        return {};
    default:
        return 0;
    }
}

QString name_of_club(int place)
{
    return QStringView(tables::sticknames::new_names[static_cast<std::size_t>(place)]).toString();
}

/// Rows count from 0.
QVariant value_of_fixed_row(const column& column, int row)
{
    switch (column.fixed) {
    case fixed_value::by_type:
        break;
    case fixed_value::blank:
        return u" "_s;
    case fixed_value::digit_zero:
        return u"0"_s;
    case fixed_value::row_from_zero:
        return QString::number(row);
    case fixed_value::row_from_one:
        return QString::number(row + 1);
    case fixed_value::name_of_club:
        return name_of_club(row + column.place);
    }
    return value_by_type(column.type);
}

void insert_fixed_rows(store_engine& engine, const table& filled)
{
    row_insertion insertion(engine, filled);
    for (int row = 0; row < filled.fixed_rows; ++row)
        insertion.add(fixed_row(filled, row));
    insertion.finish();
}

/// No index is unique: the program itself checks that a key is used once, and the rows of a new round have no
/// key yet.
std::vector<index_creation> all_indexes()
{
    std::vector<index_creation> indexes;
    for (const table& table : schema()) {
        if (table.index_name.isEmpty())
            continue;
        QStringList columns;
        for (const QString& column : table.indexed_columns)
            columns << in_back_quotes(column);
        indexes.push_back({table.index_name, u"CREATE INDEX " + in_back_quotes(table.index_name) + u" ON " +
                                                 in_back_quotes(table.name) + u" (" + columns.join(u", "_s) +
                                                 u')'});
    }
    return indexes;
}

/// False if an earlier start was ended before it had inserted all rows. Complete rows may have been edited.
bool has_fixed_rows(const store_engine& engine, const table& filled)
{
    const QString statement = u"SELECT COUNT(*) FROM " + in_back_quotes(filled.name);
    const auto rows = engine.select(statement, filled.name);
    return rows->next() && rows->value(0).toInt() == filled.fixed_rows;
}

void create_tables_and_indexes(store_engine& engine, const statement_runner& run)
{
    for (const table& table : schema()) {
        if (!engine.was_created_before(table.name))
            run(creation_statement(engine, table));
        else if (has_fixed_rows(engine, table))
            continue;
        else
            run(u"DELETE FROM " + in_back_quotes(table.name));
        insert_fixed_rows(engine, table);
    }
    if (engine.declares_indexes())
        return;
    for (const index_creation& index : all_indexes())
        run(index.statement);
}

}  // namespace

void create_tables(store_engine& engine, const statement_runner& run)
{
    const commit_statements& statements = engine.commits();
    run(statements.begin_locked);
    try {
        create_tables_and_indexes(engine, run);
        run(statements.finish);
        engine.tables_created();
    } catch (...) {
        // Fails if the engine has ended the transaction by itself, which has the same result.
        QSqlQuery(engine.database()).exec(statements.undo);
        throw;
    }
}

std::vector<QVariant> fixed_row(const table& fixed, int row)
{
    std::vector<QVariant> values;
    for (const column& each : fixed.columns)
        values.push_back(value_of_fixed_row(each, row));
    return values;
}

void renew_fixed_rows(store_engine& engine, const statement_runner& run, const table& renewed)
{
    run(u"DELETE FROM " + in_back_quotes(renewed.name));
    insert_fixed_rows(engine, renewed);
}

std::vector<index_creation> missing_indexes(const store_engine& engine)
{
    const QStringList present = engine.index_names();
    std::vector<index_creation> missing;
    for (const index_creation& index : all_indexes()) {
        if (!present.contains(index.name, Qt::CaseInsensitive))
            missing.push_back(index);
    }
    return missing;
}

}  // namespace verdane
