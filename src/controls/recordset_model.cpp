#include "controls/recordset_model.h"

#include <limits>
#include <optional>
#include <utility>

#include "base/numbers.h"
#include "base/text.h"

namespace verdane {

namespace {

bool is_number(column_type type)
{
    return type == column_type::count || type == column_type::amount || type == column_type::real;
}

template <typename Number>
bool fits(double value)
{
    return value >= std::numeric_limits<Number>::min() && value <= std::numeric_limits<Number>::max();
}

bool fits(double value, column_type type)
{
    switch (type) {
    case column_type::count:
        return fits<std::int16_t>(value);
    case column_type::amount:
        return fits<std::int32_t>(value);
    default:
        return true;
    }
}

/// The value of a text in a column; empty if the text is not valid there.
std::optional<QVariant> value_in(const bound_column& column, column_type type, const QString& text)
{
    if (type == column_type::yes_no) {
        if (text != column.yes && text != column.no)
            return std::nullopt;
        return QVariant(text == column.yes);
    }
    if (!is_number(type))
        return QVariant(text);
    if (trimmed_blanks(text).isEmpty())
        return QVariant();
    if (!is_numeric(text) || !fits(leading_number(text), type))
        return std::nullopt;
    return QVariant(text);
}

}  // namespace

recordset_model::recordset_model(Recordset& source, std::vector<bound_column> columns, QObject* parent)
    : QAbstractTableModel(parent), source_(source), columns_(std::move(columns))
{
}

void recordset_model::bind()
{
    beginResetModel();
    bound_ = true;
    row_written_ = false;
    rows_ = rows_now();
    endResetModel();
}

void recordset_model::unbind()
{
    beginResetModel();
    bound_ = false;
    row_written_ = false;
    rows_ = 0;
    endResetModel();
}

void recordset_model::refresh()
{
    follow_row_count();
    if (rows_ > 0)
        Q_EMIT dataChanged(index(0, 0), index(rows_ - 1, columnCount() - 1));
}

void recordset_model::follow_row_count()
{
    const int now = rows_now();
    if (now > rows_) {
        beginInsertRows({}, rows_, now - 1);
        rows_ = now;
        endInsertRows();
    } else if (now < rows_) {
        beginRemoveRows({}, now, rows_ - 1);
        rows_ = now;
        endRemoveRows();
    }
}

int recordset_model::rows_now() const
{
    return bound_ && source_.is_open() ? source_.RecordCount() : 0;
}

void recordset_model::finish_row()
{
    if (!std::exchange(row_written_, false))
        return;
    if (before_row_commit_)
        before_row_commit_();
}

void recordset_model::move_to(int row)
{
    if (!source_.is_open() || row == source_.position() || row < 0 || row >= source_.RecordCount())
        return;
    finish_row();
    source_.MoveTo(row);
}

bool recordset_model::takes(int column, const QString& text) const
{
    if (!source_.is_open())
        return true;
    const bound_column& shown = this->column(column);
    return value_in(shown, source_.field_type(shown.ordinal), text).has_value();
}

bool recordset_model::write(int row, int column, const QString& text)
{
    if (!source_.is_open() || row < 0 || row >= source_.RecordCount())
        return false;
    move_to(row);
    const bound_column& shown = this->column(column);
    const auto value = value_in(shown, source_.field_type(shown.ordinal), text);
    if (!value)
        return false;
    source_.Fields(shown.ordinal).set(*value);
    row_written_ = true;
    // Two columns of the grid may show the same field.
    Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1));
    return true;
}

int recordset_model::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : rows_;
}

int recordset_model::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

bool recordset_model::holds(const QModelIndex& index) const
{
    return index.isValid() && index.row() < rows_now() && index.column() < columnCount();
}

QString recordset_model::text_of(int row, const bound_column& column) const
{
    const QVariant value = source_.value_at(row, column.ordinal);
    if (source_.field_type(column.ordinal) == column_type::yes_no)
        return !value.isNull() && value.toBool() ? column.yes : column.no;
    return value.toString();
}

Qt::Alignment recordset_model::alignment_of(const bound_column& column) const
{
    const column_type type = source_.field_type(column.ordinal);
    if (type == column_type::yes_no)
        return Qt::AlignCenter;
    return (is_number(type) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
}

QVariant recordset_model::data(const QModelIndex& index, int role) const
{
    if (!holds(index))
        return {};
    const bound_column& shown = column(index.column());
    if (role == Qt::DisplayRole || role == Qt::EditRole)
        return text_of(index.row(), shown);
    if (role == Qt::TextAlignmentRole)
        return QVariant(alignment_of(shown));
    return {};
}

QVariant recordset_model::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return QAbstractTableModel::headerData(section, orientation, role);
    return role == Qt::DisplayRole ? QVariant(column(section).caption) : QVariant();
}

Qt::ItemFlags recordset_model::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags shown = QAbstractTableModel::flags(index);
    return index.isValid() && !column(index.column()).locked ? shown | Qt::ItemIsEditable : shown;
}

bool recordset_model::setData(const QModelIndex& index, const QVariant& value, int role)
{
    return role == Qt::EditRole && holds(index) && flags(index).testFlag(Qt::ItemIsEditable) &&
           write(index.row(), index.column(), value.toString());
}

}  // namespace verdane
