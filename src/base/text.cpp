#include "base/text.h"

#include <algorithm>

namespace verdane {

namespace {

constexpr QChar micro_sign = u'\u00B5';
constexpr QChar florin_sign = u'\u0192';

QChar capital(QChar c)
{
    // Two signs that Unicode treats as letters: their capitals are letters of other alphabets.
    return c == micro_sign || c == florin_sign ? c : c.toUpper();
}

}  // namespace

QStringView trimmed_blanks(QStringView text)
{
    while (text.startsWith(u' '))
        text = text.sliced(1);
    while (text.endsWith(u' '))
        text.chop(1);
    return text;
}

QString in_capitals(QStringView text)
{
    QString result = text.toString();
    std::transform(result.cbegin(), result.cend(), result.begin(), capital);
    return result;
}

}  // namespace verdane
