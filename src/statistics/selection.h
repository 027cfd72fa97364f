#pragma once

#include <QString>

#include <algorithm>
#include <string_view>

/// The selection of rounds that a statistic is computed for, and the statements that select their rows.
namespace verdane {

/// The arguments of a statistic: the selected rounds, and the texts for the heading of its report. Each
/// filter is there both as a clause and as a plain value, because the statistics select some rows with SQL
/// and test others one by one.
struct selection_arguments {
    /// Keys of the first and the last round, inclusive.
    QString from_key;
    QString to_key;

    /// Fragments of a WHERE clause, made by `clause_of`.
    QString partner_clause{u' '};
    QString course_clause{u' '};
    QString weather_clause{u' '};

    /// The filters as the report shows them.
    QString partner_text;
    QString course_text;
    QString weather_text;

    /// The filters as plain text, empty if off: the stored weather, the code of a course, the number of a
    /// partner.
    QString weather_value;
    QString course_code;
    QString partner_number;
};

enum class filter { weather, partner, course };

/// The form of the fragments. `appended`: each fragment begins with " AND " and follows the condition on the
/// dates; a filter that is off is one blank. `alone`: the statistic joins the fragments itself; a filter that
/// is off is a condition that is always true.
enum class clause_form { appended, alone };

/// The fragment of a WHERE clause for a filter. `value` is the stored weather (0 to 3), the number of a
/// partner or the code of a course, empty if the filter is off. A round whose weather is Null matches no
/// weather. The partner is searched as plain text: number 12 also finds the rounds of partner 112.
QString clause_of(filter which, clause_form form, const QString& value);

}  // namespace verdane

namespace verdane::Statistics {

/// The ordinal of a column in a statement `select table.column,table.column,... from ...`, without functions.
/// If several tables have the column, it is the first in the list. A name that the statement lacks is an
/// error of compilation.
consteval int place_in(std::u16string_view select, std::u16string_view column)
{
    constexpr std::u16string_view after_a_name = u", ";
    std::size_t start = select.find(column);
    while (start != std::u16string_view::npos) {
        const std::size_t end = start + column.size();
        const bool whole = start > 0 && select[start - 1] == u'.' && end < select.size() &&
                           after_a_name.find(select[end]) != std::u16string_view::npos;
        if (whole)
            return static_cast<int>(std::count(select.begin(), select.begin() + start, u','));
        start = select.find(column, end);
    }
    throw "the statement has no such column";
}

}  // namespace verdane::Statistics
