#pragma once

#include <algorithm>
#include <string_view>

/// The columns of a statement with columns that are listed by name, computed while compiling.
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
