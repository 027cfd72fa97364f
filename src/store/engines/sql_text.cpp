#include "store/engines/sql_text.h"

#include <QLocale>

#include <algorithm>

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

bool is_plain(QChar c)
{
    constexpr QStringView signs = u" _-.,:+=()/";
    const bool letter = (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
    return letter || (c >= u'0' && c <= u'9') || signs.contains(c);
}

bool is_quote(QChar c)
{
    return c == u'\'' || c == u'"' || c == u'`';
}

/// The position after the closing quote of the text or name that begins at `from`. Two adjacent quotes are
/// one quote of the text.
qsizetype quoted_end(QStringView statement, qsizetype from)
{
    const QChar quote = statement[from++];
    for (; from < statement.size(); ++from) {
        if (statement[from] != quote)
            continue;
        if (from + 1 == statement.size() || statement[from + 1] != quote)
            return from + 1;
        ++from;
    }
    return from;
}

QString value_of(QStringView quoted_text)
{
    QString value = quoted_text.sliced(1, quoted_text.size() - 2).toString();
    return value.replace(u"''"_s, u"'"_s);
}

}  // namespace

bool is_plain_text(QStringView text)
{
    return std::all_of(text.begin(), text.end(), is_plain);
}

QString hex_literal(const QByteArray& bytes)
{
    return u"x'" + QString::fromLatin1(bytes.toHex()) + u'\'';
}

QString literal_of_number(const QVariant& value)
{
    if (value.isNull())
        return u"NULL"_s;
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool() ? u"1"_s : u"0"_s;
    case QMetaType::Double:
    case QMetaType::Float:
        return QString::number(value.toDouble(), 'e', QLocale::FloatingPointShortest);
    default:
        return QString::number(value.toLongLong());
    }
}

QString rewritten(const QString& statement, const std::function<QString(const QString&)>& literal,
                  const std::function<QString(const QString&)>& other)
{
    QString result;
    result.reserve(statement.size());
    for (qsizetype at = 0; at < statement.size();) {
        const auto quote = std::find_if(statement.begin() + at, statement.end(), is_quote);
        const qsizetype start = quote - statement.begin();
        result += other(statement.sliced(at, start - at));
        if (start == statement.size())
            break;
        at = quoted_end(statement, start);
        const QString part = statement.sliced(start, at - start);
        const bool is_text = part.startsWith(u'\'') && part.size() > 1 && part.endsWith(u'\'');
        result += is_text ? literal(value_of(part)) : part;
    }
    return result;
}

}  // namespace verdane
