#include "store/recovery/round_selection.h"

#include <algorithm>

#include "store/tables/partners.h"

namespace verdane {

namespace {

constexpr int key_column = 0;
static_assert(tables::games::date == key_column && tables::games2::date == key_column &&
              tables::cost::date == key_column && tables::Stat_rounds::date == key_column);

using row_values = std::vector<QVariant>;

QString text_at(const row_values& row, int ordinal)
{
    return row.at(static_cast<std::size_t>(ordinal)).toString();
}

/// The rows for which a condition holds.
template <typename Condition>
table_rows rows_where(const Connection1& store, const table& read, Condition holds)
{
    table_rows rows;
    read_rows(store, read, [&](const row_values& row) {
        if (holds(row))
            rows.push_back(row);
    });
    return rows;
}

}  // namespace

table_rows all_rows(const Connection1& store, const table& read)
{
    return rows_where(store, read, [](const row_values&) { return true; });
}

table_rows rows_of_keys(const Connection1& store, const table& read, const text_set& keys)
{
    return rows_where(store, read,
                      [&](const row_values& row) { return keys.contains(text_at(row, key_column)); });
}

table_rows rows_of_other_keys(const Connection1& store, const table& read, const text_set& keys)
{
    return rows_where(store, read,
                      [&](const row_values& row) { return !keys.contains(text_at(row, key_column)); });
}

references references_of(const Connection1& store, const text_set& keys)
{
    references found;
    for (const row_values& row : rows_of_keys(store, *find_table(tables::games::table.name), keys))
        found.courses << text_at(row, tables::games::CODEF).trimmed();
    for (const row_values& row : rows_of_keys(store, *find_table(tables::games2::table.name), keys)) {
        found.courses << text_at(row, tables::games2::FC).trimmed();
        found.partners << text_at(row, tables::games2::PARTNERS);
    }
    return found;
}

table_rows rows_of_courses(const Connection1& store, const table& read, int code, const text_set& courses)
{
    return rows_where(store, read,
                      [&](const row_values& row) { return courses.contains(text_at(row, code).trimmed()); });
}

table_rows rows_of_partners(const Connection1& store, const table& read, const QStringList& texts)
{
    return rows_where(store, read, [&](const row_values& row) {
        const QString code = text_at(row, tables::partners::code);
        return std::any_of(texts.begin(), texts.end(),
                           [&](const QString& text) { return text.contains(code); });
    });
}

}  // namespace verdane
