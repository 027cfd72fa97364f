#include "store/recovery/diary_copy.h"

#include <algorithm>
#include <cmath>
#include <memory>

#include "base/language.h"
#include "store/commits.h"
#include "store/engines/engine.h"
#include "store/fresh_store.h"
#include "store/row_insertion.h"
#include "store/schema.h"
#include "store/tables/golf_bag.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

std::unique_ptr<result_rows> rows_of(const Connection1& store, const table& copied)
{
    const QString identity = store.engine().identity_column(copied.name);
    const QString statement = u"select " + columns_of(copied) + u" from " + in_back_quotes(copied.name) +
                              (identity.isEmpty() ? QString() : u" order by " + identity);
    return store.engine().select(statement, copied.name);
}

int number_of_rows(const Connection1& store, const table& counted)
{
    const QString statement = u"select count(*) from " + in_back_quotes(counted.name);
    const auto rows = store.engine().select(statement, counted.name);
    return rows->next() ? rows->value(0).toInt() : 0;
}

void copy_rows(const Connection1& from, Connection1& to, const table& copied)
{
    row_insertion insertion(to.engine(), copied);
    read_rows(from, copied, [&insertion](const std::vector<QVariant>& values) { insertion.add(values); });
    insertion.finish();
}

bool is_number(const QVariant& value)
{
    return value.typeId() == QMetaType::LongLong || value.typeId() == QMetaType::Double ||
           value.typeId() == QMetaType::Int;
}

/// One of the drivers returns 15 digits of a real number.
bool equal_numbers(double left, double right)
{
    constexpr double last_digit = 1e-14;
    if (!std::isfinite(left) || !std::isfinite(right))
        return left == right;
    return left == right || std::abs(left - right) <= last_digit * std::max(std::abs(left), std::abs(right));
}

/// Bytes are compared as such. Numbers are compared by value: one engine returns a whole number where another
/// returns a real one.
bool equal(const QVariant& left, const QVariant& right)
{
    if (left.isNull() || right.isNull())
        return left.isNull() && right.isNull();
    if (is_number(left) && is_number(right))
        return equal_numbers(left.toDouble(), right.toDouble());
    if (left.typeId() == QMetaType::QByteArray || right.typeId() == QMetaType::QByteArray)
        return left.toByteArray() == right.toByteArray();
    return left.toString() == right.toString();
}

bool equal_values(const std::vector<QVariant>& left, const std::vector<QVariant>& right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(), equal);
}

[[noreturn]] void fail_comparison(const table& compared, int row, const QString& what)
{
    throw run_time_failure(
        failure_kind::store_other,
        in_language(u"%1, ligne %2 : %3", u"%1, row %2: %3").arg(compared.name, QString::number(row), what));
}

/// Returns the number of rows.
int compare_rows(const Connection1& from, const Connection1& to, const table& compared)
{
    const auto left = rows_of(from, compared);
    const auto right = rows_of(to, compared);
    const int columns = static_cast<int>(compared.columns.size());
    int row = 0;
    while (left->next()) {
        ++row;
        if (!right->next())
            fail_comparison(compared, row, in_language(u"manque dans la copie", u"missing in the copy"));
        for (int column = 0; column < columns; ++column) {
            if (!equal(left->value(column), right->value(column)))
                fail_comparison(compared, row,
                                in_language(u"%1 vaut %2 dans la copie au lieu de %3",
                                            u"%1 is %2 in the copy instead of %3")
                                    .arg(compared.columns[static_cast<std::size_t>(column)].name,
                                         right->value(column).toString(), left->value(column).toString()));
        }
    }
    if (right->next())
        fail_comparison(compared, row + 1, in_language(u"seulement dans la copie", u"only in the copy"));
    return row;
}

/// True for a table of the golf bag, whose only row has the names or the averages of the clubs.
bool is_of_bag(const table& tested)
{
    return tested.name == QStringView(tables::sticks::table.name) ||
           tested.name == QStringView(tables::sticknames::table.name);
}

bool has_other_rows(const Connection1& store, const table& fixed)
{
    const auto rows = rows_of(store, fixed);
    for (int row = 0; rows->next(); ++row) {
        int column = 0;
        for (const QVariant& value : fixed_row(fixed, row)) {
            if (!equal(rows->value(column++), value))
                return true;
        }
    }
    return false;
}

/// Of a store without rows of its own. A server may have got rows of another program since that was checked;
/// they are not deleted.
void delete_fixed_rows(Connection1& store, const table& emptied)
{
    if (emptied.fixed_rows > 0)
        store.Execute(u"DELETE FROM " + in_back_quotes(emptied.name));
}

bool is_in_use(const Connection1& store, const table& tested, int rows)
{
    if (is_of_bag(tested))
        return has_other_rows(store, tested);
    return tested.fixed_rows == 0 && rows > 0;
}

}  // namespace

std::vector<counted_table> tables_in_use(const Connection1& store)
{
    std::vector<counted_table> used;
    for (const table& each : schema()) {
        const int rows = number_of_rows(store, each);
        if (is_in_use(store, each, rows))
            used.push_back({each.name, rows});
    }
    return used;
}

void read_rows(const Connection1& store, const table& read, const row_step& step)
{
    const auto rows = rows_of(store, read);
    std::vector<QVariant> values(read.columns.size());
    while (rows->next()) {
        for (std::size_t column = 0; column < values.size(); ++column)
            values[column] = rows->value(static_cast<int>(column));
        step(values);
    }
}

bool equal_rows(const table_rows& left, const table_rows& right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(), equal_values);
}

void need_empty(const Connection1& store)
{
    if (!tables_in_use(store).empty())
        throw run_time_failure(failure_kind::misuse,
                               u"%1: the store is not empty"_s.arg(store.location().name));
}

void fill_table(Connection1& store, const table& filled, const table_rows& rows)
{
    delete_fixed_rows(store, filled);
    row_insertion insertion(store.engine(), filled);
    for (const std::vector<QVariant>& row : rows)
        insertion.add(row);
    insertion.finish();
    std::size_t stored = 0;
    read_rows(store, filled, [&](const std::vector<QVariant>& values) {
        if (stored == rows.size() || !equal_values(values, rows[stored]))
            fail_comparison(
                filled, static_cast<int>(stored) + 1,
                in_language(u"diffère après avoir été enregistrée", u"differs after it was stored"));
        ++stored;
    });
    if (stored != rows.size())
        fail_comparison(filled, static_cast<int>(stored) + 1,
                        in_language(u"n'a pas été enregistrée", u"was not stored"));
}

QStringList tables_without_order(const Connection1& store)
{
    QStringList names;
    for (const table& each : schema()) {
        // A single row needs no order.
        if (each.fixed_rows != 1 && !store.engine().keeps_order(each.name))
            names << each.name;
    }
    return names;
}

std::vector<counted_table> copy_diary(Connection1& from, Connection1& to, const table_notice& notice)
{
    single_commit together(to);
    need_empty(to);
    std::vector<counted_table> copied;
    for (const table& each : schema()) {
        const int rows = number_of_rows(from, each);
        notice({each.name, rows});
        delete_fixed_rows(to, each);
        copy_rows(from, to, each);
        // A server can be set to return fewer rows than it has, without a failure. A damaged index of a file
        // can count fewer rows than there are, which are all copied.
        if (const int compared = compare_rows(from, to, each); compared < rows)
            fail_comparison(each, compared + 1, u"one of %1 rows, was not returned"_s.arg(rows));
        copied.push_back({each.name, rows});
    }
    together.finish();
    return copied;
}

}  // namespace verdane
