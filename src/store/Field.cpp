#include "store/Field.h"

#include "base/numbers.h"
#include "base/text.h"
#include "store/column_value.h"
#include "store/row_editor.h"

namespace verdane {

namespace {

/// Null and the text of an empty box.
bool is_nothing(const QVariant& value)
{
    return value.isNull() || (value.typeId() == QMetaType::QString && value.toString().isEmpty());
}

int16 count_of(const QVariant& value)
{
    // Nearly every count is an int already, and needs no conversion.
    if (value.typeId() == QMetaType::Int)
        return *static_cast<const int*>(value.constData());
    return to_int16(number_of(value));
}

int32 amount_of(const QVariant& value)
{
    if (value.typeId() == QMetaType::Int)
        return *static_cast<const int*>(value.constData());
    return to_int32(number_of(value));
}

QString text_of(const QVariant& value)
{
    return value.typeId() == QMetaType::QString ? *static_cast<const QString*>(value.constData())
                                                : converted(value, column_type::text).toString();
}

}  // namespace

const QVariant& Field::cell() const
{
    return rows_.cell(rows_.current(), ordinal_);
}

const QVariant& Field::cell_with_value() const
{
    const QVariant& value = cell();
    if (value.isNull())
        rows_.fail(failure_kind::invalid_null, QString(rows_.column(ordinal_).name + u" has no value"));
    return value;
}

QVariant Field::value() const
{
    return cell();
}

bool Field::is_null() const
{
    return cell().isNull();
}

QString Field::text() const
{
    return text_of(cell_with_value());
}

QString Field::text_or_empty() const
{
    const QVariant& value = cell();
    return value.isNull() ? QString() : text_of(value);
}

QString Field::trimmed() const
{
    return trimmed_blanks(text_or_empty()).toString();
}

int16 Field::to_int16() const
{
    const QVariant& value = cell_with_value();
    return rows_.located(ordinal_, [&value] { return count_of(value); });
}

int16 Field::int16_or_zero() const
{
    const QVariant& value = cell();
    if (is_nothing(value))
        return 0;
    return rows_.located(ordinal_, [&value] { return count_of(value); });
}

int32 Field::to_int32() const
{
    const QVariant& value = cell_with_value();
    return rows_.located(ordinal_, [&value] { return amount_of(value); });
}

int32 Field::int32_or_zero() const
{
    const QVariant& value = cell();
    if (is_nothing(value))
        return 0;
    return rows_.located(ordinal_, [&value] { return amount_of(value); });
}

double Field::to_double() const
{
    return number_of(cell_with_value());
}

double Field::double_or_zero() const
{
    const QVariant& value = cell();
    return value.isNull() ? 0.0 : number_of(value);
}

bool Field::yes() const
{
    const QVariant& value = cell();
    return !value.isNull() && converted(value, column_type::yes_no).toBool();
}

void Field::set(const QVariant& value)
{
    rows_.write(ordinal_, value);
}

void Field::set(int16 value)
{
    set(plain(value));
}

void Field::set(int32 value)
{
    set(plain(value));
}

}  // namespace verdane
