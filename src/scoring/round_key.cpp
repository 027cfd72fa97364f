#include "scoring/round_key.h"

#include "base/text.h"

namespace verdane::Verdane_tools {

namespace {

QStringView piece(QStringView text, qsizetype from, qsizetype length)
{
    // If the text is too short, the result is shorter, too.
    return text.mid(from, length);
}

}  // namespace

QString key_text(QStringView key)
{
    return key_date_text(key) + u' ' + key_time_text(key);
}

QString key_date_text(QStringView key)
{
    return piece(key, 0, 4) + u'-' + piece(key, 4, 2) + u'-' + piece(key, 6, 2);
}

QString key_time_text(QStringView key)
{
    return piece(key, 8, 2) + u':' + piece(key, 10, 2) + u':' + piece(key, 12, 2);
}

QString round_entry(QStringView key, QStringView course, bool incomplete)
{
    const QStringView mark = incomplete ? u"**" : u"";
    return key_text(trimmed_blanks(key)) + u" | " + u" - " + trimmed_blanks(course) + mark;
}

QString key_of_entry(QStringView entry)
{
    return piece(entry, 0, 4) + piece(entry, 5, 2) + piece(entry, 8, 2) + piece(entry, 11, 2) +
           piece(entry, 14, 2) + piece(entry, 17, 2);
}

}  // namespace verdane::Verdane_tools
