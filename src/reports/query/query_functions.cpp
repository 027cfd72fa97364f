#include "reports/query/query_functions.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <sqlite3.h>

#include <cmath>

namespace verdane {

namespace {

constexpr double least_grouped_number = 10'000;
constexpr qsizetype digits_of_group = 3;

QString text_of(sqlite3_value* value)
{
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
    return QString::fromUtf8(text, sqlite3_value_bytes(value));
}

void group(sqlite3_context* context, int, sqlite3_value** arguments)
{
    if (sqlite3_value_type(arguments[0]) == SQLITE_NULL)
        return;
    if (std::abs(sqlite3_value_double(arguments[0])) < least_grouped_number)
        return sqlite3_result_value(context, arguments[0]);
    QString number = text_of(arguments[0]);
    const QString separator = text_of(arguments[1]);
    const qsizetype first_digit = number.startsWith(u'-') ? 1 : 0;
    const qsizetype point = number.indexOf(u'.');
    for (qsizetype place = (point < 0 ? number.size() : point) - digits_of_group; place > first_digit;
         place -= digits_of_group)
        number.insert(place, separator);
    const QByteArray result = number.toUtf8();
    sqlite3_result_text(context, result.constData(), static_cast<int>(result.size()), SQLITE_TRANSIENT);
}

constexpr qsizetype most_trimmed_characters = 1000;

struct trimmed_sides {
    bool left;
    bool right;
};
constexpr trimmed_sides both{true, true};
constexpr trimmed_sides only_left{true, false};
constexpr trimmed_sides only_right{false, true};

QList<uint> characters_of(sqlite3_value* value)
{
    return text_of(value).toUcs4();
}

template <trimmed_sides sides>
void trim(sqlite3_context* context, int, sqlite3_value** arguments)
{
    if (sqlite3_value_type(arguments[0]) == SQLITE_NULL || sqlite3_value_type(arguments[1]) == SQLITE_NULL)
        return;
    const QList<uint> listed = characters_of(arguments[1]);
    if (listed.size() > most_trimmed_characters)
        return sqlite3_result_error(context, "trim takes a list of at most 1000 characters", -1);
    const QList<uint> text = characters_of(arguments[0]);
    qsizetype start = 0;
    qsizetype end = text.size();
    while (sides.left && start < end && listed.contains(text[start]))
        ++start;
    while (sides.right && start < end && listed.contains(text[end - 1]))
        --end;
    const QByteArray result =
        QString::fromUcs4(reinterpret_cast<const char32_t*>(text.constData()) + start, end - start).toUtf8();
    sqlite3_result_text(context, result.constData(), static_cast<int>(result.size()), SQLITE_TRANSIENT);
}

template <trimmed_sides sides>
void replace_function(sqlite3* connection, const char* name)
{
    sqlite3_create_function(connection, name, 2, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, trim<sides>,
                            nullptr, nullptr);
}

}  // namespace

void limit_trim(sqlite3* connection)
{
    replace_function<both>(connection, "trim");
    replace_function<only_left>(connection, "ltrim");
    replace_function<only_right>(connection, "rtrim");
}

void add_grouped(sqlite3* connection)
{
    sqlite3_create_function(connection, "grouped", 2, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, group,
                            nullptr, nullptr);
}

}  // namespace verdane
