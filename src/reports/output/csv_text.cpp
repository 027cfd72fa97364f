#include "reports/output/csv_text.h"

#include "reports/fill/template_fill.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

QString field_of(const QVariant& value, QChar separator)
{
    QString text = printed_value(value);
    if (value.typeId() == QMetaType::Double && separator == u';')
        text.replace(u'.', u',');
    const bool needs_quotes =
        text.contains(separator) || text.contains(u'"') || text.contains(u'\n') || text.contains(u'\r');
    if (!needs_quotes)
        return text;
    return u'"' + text.replace(u'"', u"\"\""_s) + u'"';
}

}  // namespace

QByteArray csv_text(const report_rows& rows, QChar separator)
{
    QString text(QChar::ByteOrderMark);
    QStringList heads;
    for (const QString& column : rows.columns)
        heads.append(field_of(column, separator));
    text += heads.join(separator) + u"\r\n"_s;
    for (const std::vector<QVariant>& row : rows.rows) {
        QStringList fields;
        for (const QVariant& value : row)
            fields.append(field_of(value, separator));
        text += fields.join(separator) + u"\r\n"_s;
    }
    return text.toUtf8();
}

}  // namespace verdane
