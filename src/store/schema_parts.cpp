#include "store/schema_parts.h"

namespace verdane {

column_list& column_list::text(std::initializer_list<QStringView> names)
{
    for (const QStringView name : names)
        one(name, column_type::text);
    return *this;
}

column_list& column_list::one(QStringView name, column_type type, const QVariant& default_value)
{
    columns_.push_back({name.toString(), type, default_value});
    return *this;
}

column_list& column_list::run(QStringView prefix, int first, int last, column_type type,
                              const QVariant& default_value)
{
    for (int i = first; i <= last; ++i)
        one(QString(prefix + QString::number(i)), type, default_value);
    return *this;
}

column_list& column_list::by_hole(std::initializer_list<QStringView> prefixes, const QVariant& default_value)
{
    for (int hole = 1; hole <= hole_count; ++hole)
        for (const QStringView prefix : prefixes)
            one(QString(prefix + QString::number(hole)), column_type::count, default_value);
    return *this;
}

}  // namespace verdane
