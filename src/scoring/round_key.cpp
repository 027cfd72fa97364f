#include "scoring/round_key.h"

#include <algorithm>
#include <array>

#include "base/text.h"
#include "scoring/limits.h"

namespace verdane::Verdane_tools {

namespace {

struct key_part {
    int start;
    int digits;
};

constexpr std::array key_parts{key_part{0, 4}, key_part{4, 2},  key_part{6, 2},
                               key_part{8, 2}, key_part{10, 2}, key_part{12, 2}};
static_assert(key_parts.back().start + key_parts.back().digits == round_key_digits);

/// The indexes of the first part of the date, and of the time.
constexpr std::size_t year = 0;
constexpr std::size_t hour = 3;

/// Three parts of the key, separated. If the key is too short, the result is shorter, too.
QString three_parts(QStringView key, std::size_t first, QChar separator)
{
    const auto part = [&](std::size_t index) {
        return key.mid(key_parts[index].start, key_parts[index].digits);
    };
    return part(first) + separator + part(first + 1) + separator + part(first + 2);
}

}  // namespace

bool is_round_key(QStringView text)
{
    const auto is_digit = [](QChar character) { return character >= u'0' && character <= u'9'; };
    return text.size() == round_key_digits && std::all_of(text.begin(), text.end(), is_digit);
}

QString key_text(QStringView key)
{
    return key_date_text(key) + u' ' + key_time_text(key);
}

QString key_date_text(QStringView key)
{
    return three_parts(key, year, u'-');
}

QString key_time_text(QStringView key)
{
    return three_parts(key, hour, u':');
}

QString round_entry(QStringView key, QStringView course, bool incomplete)
{
    const QStringView mark = incomplete ? u"**" : u"";
    return key_text(trimmed_blanks(key)) + u" | " + u" - " + trimmed_blanks(course) + mark;
}

QString key_of_entry(QStringView entry)
{
    QString key;
    int separators = 0;
    for (const key_part& part : key_parts)
        key += entry.mid(part.start + separators++, part.digits);
    return key;
}

}  // namespace verdane::Verdane_tools
