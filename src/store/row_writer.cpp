#include "store/row_writer.h"

#include <algorithm>

#include "base/run_time_failure.h"
#include "store/Connection1.h"
#include "store/engines/engine.h"
#include "store/prepared_statements.h"
#include "store/schema.h"

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

/// The columns that are declared. The server sets the columns that someone else has added to a table, so
/// their stored values may differ from those in memory.
std::vector<int> declared_columns(const row_set& set)
{
    std::vector<int> declared;
    declared.reserve(set.columns.size());
    for (int ordinal = 0; ordinal < static_cast<int>(set.columns.size()); ++ordinal) {
        if (set.columns[static_cast<std::size_t>(ordinal)].stored)
            declared.push_back(ordinal);
    }
    return declared;
}

/// The columns with a value in the statement that inserts a row.
std::vector<int> written_columns(const store_engine& engine, const row_set& set, const recordset_row& row)
{
    // The defaults of the table must not apply if they are not those of the row in memory, and without a
    // number the row is found again by its values.
    if (!set.has_numbers || !engine.has_declared_defaults(set.shape.table))
        return declared_columns(set);
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
    statement.text += words + in_back_quotes(set.shape.table);
    statement.values.reserve(columns + 1);
    return statement;
}

/// The value that the store has in a column of the row.
const QVariant& stored_value(const recordset_row& row, int ordinal)
{
    if (row.pending) {
        for (const auto& [changed, before] : row.pending->before) {
            if (changed == ordinal)
                return before;
        }
    }
    return cell(row, ordinal);
}

/// A value of a row that may be pending.
using value_in_row = const QVariant& (*)(const recordset_row& row, int ordinal);

/// How many rows before `row` have the values that the store has in it. `value` is what the store has in the
/// rows before.
int equal_rows_before(const row_set& set, const recordset_row& row, value_in_row value)
{
    const std::vector<int> columns = declared_columns(set);
    int equal = 0;
    for (const auto& other : set.rows) {
        if (other.get() == &row)
            break;
        equal += std::all_of(columns.begin(), columns.end(), [&](int ordinal) {
            return value(*other, ordinal) == stored_value(row, ordinal);
        });
    }
    return equal;
}

/// Appends the condition that selects the row by its number.
void add_number(const store_engine& engine, statement_with_values& statement, const row_set& set,
                const recordset_row& row)
{
    statement.text += u" WHERE " + engine.identity_column(set.shape.table) + u'=';
    engine.add_value(statement, row.number);
}

/// The condition that holds for the row, and for those that have the same values in all declared columns.
statement_with_values condition_of_values(const store_engine& engine, const row_set& set,
                                          const recordset_row& row)
{
    statement_with_values condition;
    QStringView before = u"";
    for (const int ordinal : declared_columns(set)) {
        condition.text += before;
        engine.add_comparison(condition, column_name(set, ordinal), stored_value(row, ordinal));
        before = u" AND ";
    }
    return condition;
}

/// Runs a statement, which ends before its condition, for the row alone. `equal_before` is the number of rows
/// before it that a condition on its values cannot distinguish from it. Returns the number of rows that
/// matched.
int change_row(store_engine& engine, statement_with_values& statement, const row_set& set,
               const recordset_row& row, int equal_before, const QString& where)
{
    if (!set.has_numbers)
        return engine.change_one(statement, condition_of_values(engine, set, row), equal_before, where);
    add_number(engine, statement, set, row);
    return engine.change(statement, where);
}

qint64 insert_row(store_engine& engine, const row_set& set, const recordset_row& row, const QString& where)
{
    const std::vector<int> written = written_columns(engine, set, row);
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
    if (set.has_numbers)
        return engine.insert(statement, where);
    engine.change(statement, where);
    return 0;
}

run_time_failure no_such_row(const QString& where)
{
    return {failure_kind::misuse, QString(where + u": the row is no longer in the store")};
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
    // The rows before it that are pending, too, have been written by the same batch.
    const int equal_before = set.has_numbers ? 0 : equal_rows_before(set, row, cell);
    if (change_row(engine, statement, set, row, equal_before, where) == 0)
        throw no_such_row(where);
}

}  // namespace

qint64 write_row(const Connection1& connection, const row_set& set, const recordset_row& row,
                 const QString& where)
{
    connection.need_soundness();
    if (row.pending->is_new || !changed_columns(row).empty())
        connection.count_statement();
    if (row.pending->is_new)
        return insert_row(connection.engine(), set, row, where);
    update_row(connection.engine(), set, row, where);
    return row.number;
}

void erase_row(const Connection1& connection, const row_set& set, const recordset_row& row,
               const QString& where)
{
    connection.need_soundness();
    statement_with_values statement = start_statement(u"DELETE FROM ", set, 0);
    connection.count_statement();
    // Without a number, a row whose values have changed meanwhile would silently stay in the store.
    if (change_row(connection.engine(), statement, set, row, row.equal_before, where) == 0 &&
        !set.has_numbers)
        throw no_such_row(where);
}

void number_equal_rows(const row_set& set, recordset_row& removed)
{
    if (!set.has_numbers)
        removed.equal_before = equal_rows_before(set, removed, stored_value);
}

}  // namespace verdane
