#include "store/row_writer.h"

#include "base/run_time_failure.h"
#include "store/Connection1.h"
#include "store/engines/engine.h"
#include "store/prepared_statements.h"

namespace verdane {

namespace {

const QString& column_name(const row_set& set, int ordinal)
{
    return set.columns[static_cast<std::size_t>(ordinal)].name;
}

const QVariant& cell(const recordset_row& row, int ordinal)
{
    return row.cells[static_cast<std::size_t>(ordinal)];
}

std::vector<int> changed_columns(const recordset_row& row)
{
    std::vector<int> changed;
    for (const auto& [ordinal, before] : row.pending->before) {
        if (cell(row, ordinal) != before)
            changed.push_back(ordinal);
    }
    return changed;
}

std::vector<int> written_columns(const recordset_row& row)
{
    std::vector<int> written;
    written.reserve(row.pending->before.size());
    for (const auto& [ordinal, before] : row.pending->before)
        written.push_back(ordinal);
    // An insertion needs at least one column. A column that was not written has its default.
    if (written.empty())
        written.push_back(0);
    return written;
}

statement_with_values start_statement(QStringView words, const row_set& set, std::size_t columns)
{
    constexpr qsizetype letters_of_a_column = 32;
    statement_with_values statement;
    statement.text.reserve(letters_of_a_column * static_cast<qsizetype>(columns + 2));
    statement.text += words + u'`' + set.shape.table + u'`';
    statement.values.reserve(columns + 1);
    return statement;
}

/// Appends the condition that selects the row with that number.
void add_identity(const store_engine& engine, statement_with_values& statement, const row_set& set,
                  qint64 number)
{
    statement.text += u" WHERE " + engine.identity_column(set.shape.table) + u'=';
    engine.add_value(statement, number);
}

qint64 insert_row(store_engine& engine, const row_set& set, const recordset_row& row, const QString& where)
{
    const std::vector<int> written = written_columns(row);
    statement_with_values statement = start_statement(u"INSERT INTO ", set, written.size());
    QStringView before = u" (`";
    for (const int ordinal : written) {
        statement.text += before;
        statement.text += column_name(set, ordinal);
        before = u"`,`";
    }
    before = u"`) VALUES (";
    for (const int ordinal : written) {
        statement.text += before;
        engine.add_value(statement, cell(row, ordinal));
        before = u",";
    }
    statement.text += u')';
    return engine.insert(statement, where);
}

void update_row(store_engine& engine, const row_set& set, const recordset_row& row, const QString& where)
{
    const std::vector<int> changed = changed_columns(row);
    if (changed.empty())
        return;
    statement_with_values statement = start_statement(u"UPDATE ", set, changed.size());
    QStringView before = u" SET `";
    for (const int ordinal : changed) {
        statement.text += before;
        statement.text += column_name(set, ordinal);
        statement.text += QStringView(u"`=");
        engine.add_value(statement, cell(row, ordinal));
        before = u",`";
    }
    add_identity(engine, statement, set, row.number);
    if (engine.change(statement, where) == 0)
        throw run_time_failure(failure_kind::misuse, QString(where + u": the row is no longer in the store"));
}

}  // namespace

qint64 write_row(const Connection1& connection, const row_set& set, const recordset_row& row,
                 const QString& where)
{
    connection.need_soundness();
    if (row.pending->is_new)
        return insert_row(connection.engine(), set, row, where);
    update_row(connection.engine(), set, row, where);
    return row.number;
}

void erase_row(const Connection1& connection, const row_set& set, qint64 number, const QString& where)
{
    connection.need_soundness();
    statement_with_values statement = start_statement(u"DELETE FROM ", set, 0);
    add_identity(connection.engine(), statement, set, number);
    connection.engine().change(statement, where);
}

}  // namespace verdane
