#include "recordset_rows.h"

#include "Connection1.h"

#include <QSqlField>
#include <QSqlRecord>

#include <limits>

/// From a statement to rows in memory.
namespace verdane {

namespace {

recordset_column column_of(const QString& name, const table* home, bool updatable)
{
    recordset_column result{name, column_type::any, {}, updatable && home == nullptr};
    if (!updatable || home == nullptr)
        return result;
    for (const column& declared : home->columns) {
        if (declared.name.compare(name, Qt::CaseInsensitive) == 0)
            return {name, declared.type, declared.default_value, true};
    }
    return result;
}

void read_columns(row_set& set, const QSqlRecord& record)
{
    const table* home = set.shape.updatable ? find_table(set.shape.table) : nullptr;
    const int hidden = set.shape.updatable ? 1 : 0;
    set.columns.reserve(static_cast<std::size_t>(record.count()));
    for (int i = hidden; i < record.count(); ++i) {
        const QString name = record.fieldName(i);
        set.columns.push_back(column_of(name, home, set.shape.updatable));
        const QString key = name.toLower();
        if (!set.ordinals.contains(key))
            set.ordinals.insert(key, i - hidden);
    }
}

/// The engine hands out every whole number in 64 bits; in memory a cell has its column's own type,
/// so that reading it needs no conversion. A value of another kind than declared stays as it is.
QVariant in_column_type(QVariant value, column_type type)
{
    if (value.isNull())
        return {};
    if (value.typeId() != QMetaType::LongLong)
        return value;
    const qlonglong number = *static_cast<const qlonglong*>(value.constData());
    if (type == column_type::yes_no)
        return number != 0;
    if (number < std::numeric_limits<int>::min() || number > std::numeric_limits<int>::max())
        return value;
    return type == column_type::real ? QVariant(static_cast<double>(number))
                                     : QVariant(static_cast<int>(number));
}

std::unique_ptr<recordset_row> read_row(const QSqlQuery& query, const row_set& set)
{
    auto row = std::make_unique<recordset_row>();
    const int hidden = set.shape.updatable ? 1 : 0;
    if (hidden != 0)
        row->number = query.value(0).toLongLong();
    row->cells.reserve(set.columns.size());
    int at = hidden;
    for (const recordset_column& column : set.columns)
        row->cells.push_back(in_column_type(query.value(at++), column.type));
    return row;
}

}  // namespace

row_set read_rows(const Connection1& connection, const QString& statement, const QString& where)
{
    row_set set;
    set.shape = read_select(statement);
    QSqlQuery query(connection.database());
    query.setForwardOnly(true);
    if (!query.exec(set.shape.updatable ? with_row_number(statement, set.shape) : statement))
        throw store_failure(query.lastError(), where);
    read_columns(set, query.record());
    while (query.next())
        set.rows.push_back(read_row(query, set));
    if (query.lastError().isValid())
        throw store_failure(query.lastError(), where);
    return set;
}

}  // namespace verdane
