#include "store/row_reader.h"

#include <QSqlError>
#include <QSqlField>
#include <QSqlRecord>

#include <algorithm>
#include <limits>
#include <optional>
#include <utility>

#include "store/Connection1.h"
#include "store/engines/engine.h"
#include "store/schema.h"

namespace verdane {

namespace {

bool is_called(const column& declared, const QString& name)
{
    return declared.name.compare(name, Qt::CaseInsensitive) == 0;
}

/// Tests `likely` first: the ordinal in the table if the statement selects all columns. The tables of the
/// rounds have some two hundred.
const column* declared_column(const table& owner, const QString& name, std::size_t likely)
{
    const auto& all = owner.columns;
    if (likely < all.size() && is_called(all[likely], name))
        return &all[likely];
    const auto found =
        std::find_if(all.begin(), all.end(), [&name](const column& each) { return is_called(each, name); });
    return found == all.end() ? nullptr : &*found;
}

recordset_column column_of(const QString& name, std::size_t likely, const select_statement& shape,
                           const table* owner)
{
    if (!shape.updatable || owner == nullptr)
        return {name, column_type::any, {}, shape.updatable};
    const column* declared = declared_column(*owner, name, likely);
    return declared == nullptr ? recordset_column{name, column_type::any, {}, false}
                               : recordset_column{name, declared->type, declared->default_value, true};
}

void read_columns(row_set& set, const QSqlRecord& record)
{
    const table* owner = set.shape.updatable ? find_table(set.shape.table) : nullptr;
    const int hidden = set.has_numbers ? 1 : 0;
    set.columns.reserve(static_cast<std::size_t>(record.count()));
    for (int i = hidden; i < record.count(); ++i) {
        const QString name = record.fieldName(i);
        set.columns.push_back(column_of(name, static_cast<std::size_t>(i - hidden), set.shape, owner));
        const QString key = name.toLower();
        if (!set.ordinals.contains(key))
            set.ordinals.insert(key, i - hidden);
    }
}

/// A whole number of any width; nothing if the value is none.
std::optional<qlonglong> whole_number(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::LongLong:
        return *static_cast<const qlonglong*>(value.constData());
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::ULongLong:
        return value.toLongLong();
    default:
        return std::nullopt;
    }
}

/// Engines return whole numbers in various widths. In memory a cell has the type of its column, so that
/// reading needs no conversion. A value of another type than the declared one is not changed.
QVariant in_column_type(QVariant value, column_type type)
{
    if (value.isNull())
        return {};
    const std::optional<qlonglong> whole = whole_number(value);
    if (!whole)
        return value;
    const qlonglong number = *whole;
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
    const int hidden = set.has_numbers ? 1 : 0;
    if (hidden != 0)
        row->number = query.value(0).toLongLong();
    row->cells.reserve(set.columns.size());
    int at = hidden;
    for (const recordset_column& column : set.columns)
        row->cells.push_back(in_column_type(query.value(at++), column.type));
    return row;
}

}  // namespace

row_stream::row_stream(const Connection1& connection, const QString& statement, QString where, row_use use)
    : connection_(connection),
      where_(std::move(where)),
      shape_(read_select(statement)),
      query_(connection.database())
{
    const store_engine& engine = connection.engine();
    shape_.updatable = shape_.updatable && use == row_use::read_and_write;
    const QString identity = shape_.updatable ? engine.identity_column(shape_.table) : QString();
    has_numbers_ = !identity.isEmpty();
    const QString complete =
        has_numbers_ ? engine.select_with_identity(statement, shape_, identity) : statement;
    query_.setForwardOnly(true);
    if (!query_.exec(engine.as_sent(complete)))
        throw connection_.engine().failure(query_.lastError(), where_);
}

row_set row_stream::columns() const
{
    row_set set;
    set.shape = shape_;
    set.has_numbers = has_numbers_;
    read_columns(set, query_.record());
    return set;
}

std::unique_ptr<recordset_row> row_stream::next(const row_set& columns)
{
    if (query_.next())
        return read_row(query_, columns);
    if (query_.lastError().isValid())
        throw connection_.engine().failure(query_.lastError(), where_);
    return nullptr;
}

row_set read_rows(const Connection1& connection, const QString& statement, const QString& where)
{
    row_stream stream(connection, statement, where, row_use::read_and_write);
    row_set set = stream.columns();
    while (auto row = stream.next(set))
        set.rows.push_back(std::move(row));
    return set;
}

}  // namespace verdane
