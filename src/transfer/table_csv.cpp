#include "transfer/table_csv.h"

#include <QStringList>

#include "base/csv.h"
#include "transfer/table_values.h"

namespace verdane {

using namespace Qt::StringLiterals;

QString csv_name_of(const table& named)
{
    return named.name + u".csv";
}

QString csv_heads_of(const table& written)
{
    QStringList names;
    for (const column& each : written.columns)
        names << each.name;
    return names.join(u',') + u'\n';
}

std::optional<QString> csv_line_of(const std::vector<QVariant>& row)
{
    QStringList values;
    for (const QVariant& value : row) {
        if (value.isNull())
            values << QString();
        else if (value.typeId() == QMetaType::QByteArray)
            return std::nullopt;
        else if (value.typeId() == QMetaType::QString)
            values << csv_quoted(value.toString());
        else if (value.typeId() == QMetaType::Double)
            values << text_of_number(value.toDouble());
        else
            values << QString::number(value.toLongLong());
    }
    return values.join(u',') + u'\n';
}

}  // namespace verdane
