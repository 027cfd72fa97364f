#include "store/engines/column_content.h"

#include <QStringList>

#include <algorithm>

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

/// The driver of SQLite reads columns whose type begins with one of these as whole numbers.
bool is_read_as_whole_number(const QString& type)
{
    static const QStringList starts{u"int"_s,    u"tinyint"_s, u"smallint"_s, u"mediumint"_s,
                                    u"bigint"_s, u"bit"_s,     u"bool"_s};
    const QString unsigned_word = u"unsigned "_s;
    const bool is_unsigned = type.startsWith(unsigned_word, Qt::CaseInsensitive);
    const QString name = is_unsigned ? type.sliced(unsigned_word.size()) : type;
    return std::any_of(starts.begin(), starts.end(),
                       [&name](const QString& start) { return name.startsWith(start, Qt::CaseInsensitive); });
}

}  // namespace

column_content content_in_mariadb(const QString& type, bool rounds)
{
    // A column of type `char` drops trailing blanks.
    static const QStringList texts{u"varchar"_s, u"tinytext"_s, u"text"_s, u"mediumtext"_s, u"longtext"_s};
    static const QStringList whole{u"tinyint"_s, u"smallint"_s, u"mediumint"_s,
                                   u"int"_s,     u"bigint"_s,   u"decimal"_s};
    const QString name = type.toLower();
    if (texts.contains(name))
        return column_content::texts;
    if (whole.contains(name))
        return column_content::whole_numbers;
    if (name == u"double")
        return rounds ? column_content::whole_numbers : column_content::numbers;
    // It stores 24 bits of a number.
    return name == u"float" ? column_content::counts : column_content::other;
}

column_content content_in_sqlite(const QString& type)
{
    const auto names = [&type](QStringView part) { return type.contains(part, Qt::CaseInsensitive); };
    if (is_read_as_whole_number(type))
        return column_content::whole_numbers;
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
    const bool is_whole = content == column_content::numbers || content == column_content::whole_numbers;
    switch (type) {
    case column_type::text:
        return content == column_content::texts;
    case column_type::real:
        return content == column_content::numbers;
    case column_type::amount:
        return is_whole;
    default:
        return is_whole || content == column_content::counts;
    }
}

}  // namespace verdane
