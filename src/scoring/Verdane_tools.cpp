#include "scoring/Verdane_tools.h"

#include <string_view>

#include "base/text.h"
#include "scoring/words.h"

namespace verdane::Verdane_tools {

namespace {

// The number of tees, from the first one on, whose French names are in capitals.
constexpr int tees_in_capitals = 4;

// The characters of Windows-1252 at 0x80 to 0x9F; a code without a character is mapped to itself.
constexpr std::u16string_view middle_of_code_page =
    u"\u20AC\u0081\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030\u0160\u2039\u0152\u008D\u017D\u008F"
    u"\u0090\u2018\u2019\u201C\u201D\u2022\u2013\u2014\u02DC\u2122\u0161\u203A\u0153\u009D\u017E\u0178";
constexpr int middle_start = 0x80;
constexpr int middle_end = 0xA0;
static_assert(middle_of_code_page.size() == middle_end - middle_start);

int character_code(QChar c)
{
    const char16_t unit = c.unicode();
    if (unit < middle_start || (unit >= middle_end && unit <= 0xFF))
        return unit;
    const auto place = middle_of_code_page.find(unit);
    return place == std::u16string_view::npos ? '?' : middle_start + static_cast<int>(place);
}

int32 code_sum(QStringView text)
{
    int32 sum = 0;
    for (const QChar c : text)
        sum = sum + character_code(c);
    return sum;
}

void trim(QString& text)
{
    text = trimmed_blanks(text).toString();
}

}  // namespace

QString pad_right(QString& text, int16 width)
{
    trim(text);
    text = text.leftJustified(plain(width), u' ');
    return text;
}

QString pad_zero(QString& text, int16 width)
{
    trim(text);
    text = text.rightJustified(plain(width), u'0');
    return text;
}

QString tee_name_in(bool french, QStringView digit)
{
    const QStringView code = trimmed_blanks(digit);
    const int tee = code.size() == 1 ? code.front().unicode() - u'0' : -1;
    if (tee < 0 || tee >= static_cast<int>(tee_words.size()))
        return {};
    const QString name = tee_words[static_cast<std::size_t>(tee)].in(french);
    return french && tee < tees_in_capitals ? in_capitals(name) : name;
}

int32 name_checksum(QString& first, QString& second)
{
    first = in_capitals(trimmed_blanks(first));
    second = in_capitals(trimmed_blanks(second));
    const int32 lengths = first.size() + second.size();
    return code_sum(first) + code_sum(second) + 2 * lengths;
}

}  // namespace verdane::Verdane_tools
