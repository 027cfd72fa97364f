#include "store/column_value.h"

#include "base/numbers.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

/// An empty text is a value; Qt would store a default-constructed one as Null.
QString never_null(const QString& text)
{
    return text.isNull() ? u""_s : text;
}

QString text_of(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::Double:
    case QMetaType::Float:
        return number_text(value.toDouble());
    case QMetaType::Bool:
        return value.toBool() ? u"1"_s : u"0"_s;
    default:
        return never_null(value.toString());
    }
}

bool yes_of(const QVariant& value)
{
    if (value.typeId() == QMetaType::QString && value.toString().compare(u"true", Qt::CaseInsensitive) == 0)
        return true;
    return number_of(value) != 0.0;
}

}  // namespace

double number_of(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::Double:
        return *static_cast<const double*>(value.constData());
    case QMetaType::QString:
        return leading_number(*static_cast<const QString*>(value.constData()));
    case QMetaType::Bool:
        return value.toBool() ? 1.0 : 0.0;
    default:
        return value.toDouble();
    }
}

QVariant converted(const QVariant& value, column_type type)
{
    if (value.isNull())
        return {};
    switch (type) {
    case column_type::text:
        return text_of(value);
    case column_type::count:
        return plain(to_int16(number_of(value)));
    case column_type::amount:
        return value.typeId() == QMetaType::Int ? value : QVariant(plain(to_int32(number_of(value))));
    case column_type::real:
        return number_of(value);
    case column_type::yes_no:
        return yes_of(value);
    case column_type::any:
        break;
    }
    return value.typeId() == QMetaType::QString ? QVariant(never_null(value.toString())) : value;
}

}  // namespace verdane
