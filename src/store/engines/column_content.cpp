#include "store/engines/column_content.h"

#include <QStringList>

namespace verdane {

using namespace Qt::StringLiterals;

column_content content_in_mariadb(const QString& type, int decimals)
{
    static const QStringList texts{u"char"_s, u"varchar"_s,    u"tinytext"_s,
                                   u"text"_s, u"mediumtext"_s, u"longtext"_s};
    static const QStringList whole{u"tinyint"_s, u"smallint"_s, u"mediumint"_s, u"int"_s, u"bigint"_s};
    static const QStringList real{u"float"_s, u"double"_s};
    const QString name = type.toLower();
    if (texts.contains(name))
        return column_content::texts;
    if (whole.contains(name) || (name == u"decimal" && decimals == 0))
        return column_content::whole_numbers;
    return real.contains(name) || name == u"decimal" ? column_content::numbers : column_content::other;
}

column_content content_in_sqlite(const QString& type)
{
    const auto names = [&type](QStringView part) { return type.contains(part, Qt::CaseInsensitive); };
    if (names(u"INT"))
        return column_content::numbers;
    if (names(u"CHAR") || names(u"CLOB") || names(u"TEXT"))
        return column_content::texts;
    return type.isEmpty() || names(u"BLOB") ? column_content::anything : column_content::numbers;
}

bool fits(column_content content, column_type type)
{
    if (content == column_content::anything || type == column_type::any)
        return true;
    switch (type) {
    case column_type::text:
        return content == column_content::texts;
    case column_type::real:
        return content == column_content::numbers;
    default:
        return content == column_content::numbers || content == column_content::whole_numbers;
    }
}

}  // namespace verdane
