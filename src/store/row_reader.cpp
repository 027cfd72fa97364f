#include "store/row_reader.h"

#include <QStringList>

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

/// All columns of the table, although the statement selects some of them only.
void declare_columns(row_set& set, const table& owner)
{
    for (const column& each : owner.columns) {
        set.ordinals.insert(each.name.toLower(), static_cast<int>(set.columns.size()));
        set.columns.push_back({each.name, each.type, each.default_value, true});
    }
}

void read_columns(row_set& set, const result_rows& rows)
{
    const table* owner = set.shape.updatable ? find_table(set.shape.table) : nullptr;
    if (owner != nullptr && !set.read_first.empty())
        return declare_columns(set, *owner);
    const int hidden = set.has_numbers ? 1 : 0;
    const int count = rows.column_count();
    set.columns.reserve(static_cast<std::size_t>(count));
    for (int i = hidden; i < count; ++i) {
        const QString name = rows.column_name(i);
        set.columns.push_back(column_of(name, static_cast<std::size_t>(i - hidden), set.shape, owner));
        const QString key = name.toLower();
        if (!set.ordinals.contains(key))
            set.ordinals.insert(key, i - hidden);
    }
}

/// A whole number of any width; nothing for any other value.
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

std::unique_ptr<recordset_row> read_row(const result_rows& rows, const row_set& set)
{
    auto row = std::make_unique<recordset_row>();
    int at = 0;
    if (set.has_numbers)
        row->number = rows.value(at++).toLongLong();
    row->complete = set.read_first.empty();
    if (row->complete) {
        row->cells.reserve(set.columns.size());
        for (const recordset_column& column : set.columns)
            row->cells.push_back(in_column_type(rows.value(at++), column.type));
        return row;
    }
    row->cells.resize(set.columns.size());
    for (const int ordinal : set.read_first) {
        const auto place = static_cast<std::size_t>(ordinal);
        row->cells[place] = in_column_type(rows.value(at++), set.columns[place].type);
    }
    return row;
}

bool can_read_first(const select_statement& shape, const QString& identity)
{
    return shape.all_columns && !identity.isEmpty() && find_table(shape.table) != nullptr;
}

/// Takes the cells of a row that was read completely.
void take_cells(recordset_row& row, recordset_row& read, const row_set& set, const QString& where)
{
    if (read.cells.size() < set.columns.size())
        throw run_time_failure(failure_kind::missing_table,
                               QString(where + u": the table has fewer columns than the program"));
    row.cells = std::move(read.cells);
    // A table may have further columns after those of the program.
    row.cells.resize(set.columns.size());
    row.complete = true;
}

}  // namespace

bool row_set::has_value(const recordset_row& row, int ordinal) const
{
    return row.complete || std::find(read_first.begin(), read_first.end(), ordinal) != read_first.end();
}

row_stream::row_stream(const Connection1& connection, const QString& statement, const QString& where,
                       row_use use, std::vector<int> read_first)
    : connection_(connection), shape_(read_select(statement)), read_first_(std::move(read_first))
{
    const store_engine& engine = connection.engine();
    shape_.updatable = shape_.updatable && use == row_use::read_and_write;
    const QString identity = shape_.updatable ? engine.identity_column(shape_.table) : QString();
    has_numbers_ = !identity.isEmpty();
    if (!can_read_first(shape_, identity))
        read_first_.clear();
    connection.count_statement();
    rows_ = engine.select(engine_statement(engine, statement, identity), where);
}

row_stream::~row_stream() = default;

QString row_stream::engine_statement(const store_engine& engine, const QString& statement,
                                     const QString& identity) const
{
    if (!has_numbers_)
        return statement;
    if (read_first_.empty())
        return engine.select_with_identity(statement, shape_, identity);
    const table& owner = *find_table(shape_.table);
    QStringList names{identity};
    for (const int ordinal : read_first_)
        names += in_back_quotes(owner.columns[static_cast<std::size_t>(ordinal)].name);
    return with_columns(statement, shape_, names.join(u", "));
}

row_set row_stream::columns() const
{
    row_set set;
    set.shape = shape_;
    set.has_numbers = has_numbers_;
    set.read_first = read_first_;
    read_columns(set, *rows_);
    return set;
}

std::unique_ptr<recordset_row> row_stream::next(const row_set& columns)
{
    if (!rows_->next())
        return nullptr;
    connection_.count_row(read_first_.empty() ? columns.columns.size() : read_first_.size());
    return read_row(*rows_, columns);
}

row_set read_rows(const Connection1& connection, const QString& statement, const QString& where,
                  const std::vector<int>& read_first)
{
    row_stream stream(connection, statement, where, row_use::read_and_write, read_first);
    row_set set = stream.columns();
    while (auto row = stream.next(set))
        set.rows.push_back(std::move(row));
    return set;
}

void complete_row(const Connection1& connection, const row_set& set, recordset_row& row, const QString& where)
{
    const QString identity = connection.engine().identity_column(set.shape.table);
    row_set read = read_rows(connection,
                             u"select * from " + in_back_quotes(set.shape.table) + u" where " + identity +
                                 u'=' + QString::number(row.number),
                             where);
    if (read.rows.empty())
        throw run_time_failure(failure_kind::misuse, QString(where + u": the row is no longer in the store"));
    take_cells(row, *read.rows.front(), set, where);
}

void complete_rows(const Connection1& connection, row_set& set, const QString& statement,
                   const QString& where)
{
    row_set read = read_rows(connection, statement, where);
    QHash<qint64, recordset_row*> by_number;
    for (const auto& row : read.rows)
        by_number.insert(row->number, row.get());
    for (const auto& row : set.rows) {
        recordset_row* found = row->complete ? nullptr : by_number.value(row->number);
        if (found != nullptr)
            take_cells(*row, *found, set, where);
    }
}

}  // namespace verdane
