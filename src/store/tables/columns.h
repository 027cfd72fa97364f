#pragma once

#include <algorithm>
#include <array>
#include <initializer_list>
#include <string_view>

#include "scoring/limits.h"

/// The types that declare the columns of a table.
namespace verdane {

/// A `count` has 16 bits, an `amount` 32. `any` is a column that nothing reads or writes, or one that a
/// statement computes.
enum class column_type { text, count, amount, real, yes_no, any };

/// The value of a column in a new row when nothing was written to it.
enum class default_value { null, zero };

/// The value of a column in the fixed rows of a new store.
enum class fixed_value {
    by_type,        ///< an empty text, 0 in a number, Null in an `any` column
    blank,          ///< one blank
    digit_zero,     ///< the text "0"
    row_from_zero,  ///< the number of the row as text
    row_from_one,   ///< the same, the first row being "1"
    name_of_club    ///< of the club with the number of the column in its run, or of the row
};

}  // namespace verdane

namespace verdane::tables {

/// Adjacent columns of one type. The names follow each other; in a numbered group they are prefixes, and all
/// of them are repeated for each number: `long_1`, `approach_1`, `putt_1`, `long_2`, ...
struct column_group {
    static constexpr std::size_t most_names = 12;

    column_type type = column_type::any;
    std::array<std::u16string_view, most_names> names{};
    int name_count = 0;
    /// The highest number; 0 in a group without numbers.
    int numbers = 0;
    /// A second number after the first: `putt_len_1_1`, `putt_len_1_2`, ... 0 in a group without one.
    int parts = 0;
    /// The declared number of characters of a text; 0 for any number.
    int characters = 0;
    default_value initial = default_value::null;
    fixed_value fixed = fixed_value::by_type;

    constexpr int size() const { return name_count * std::max(numbers, 1) * std::max(parts, 1); }

    constexpr column_group numbered(int highest) const
    {
        column_group group = *this;
        group.numbers = highest;
        return group;
    }
    constexpr column_group by_hole() const { return numbered(hole_count); }
    constexpr column_group by_club() const { return numbered(club_count); }
    constexpr column_group in_parts(int count) const
    {
        column_group group = *this;
        group.parts = count;
        return group;
    }
    constexpr column_group from_zero() const
    {
        column_group group = *this;
        group.initial = default_value::zero;
        return group;
    }
    constexpr column_group filled_with(fixed_value value) const
    {
        column_group group = *this;
        group.fixed = value;
        return group;
    }
};

using names_of_columns = std::initializer_list<std::u16string_view>;

constexpr column_group columns_of(column_type type, names_of_columns names)
{
    column_group group;
    group.type = type;
    std::copy(names.begin(), names.end(), group.names.begin());
    group.name_count = static_cast<int>(names.size());
    return group;
}
constexpr column_group text(names_of_columns names)
{
    return columns_of(column_type::text, names);
}
constexpr column_group count(names_of_columns names)
{
    return columns_of(column_type::count, names);
}
constexpr column_group amount(names_of_columns names)
{
    return columns_of(column_type::amount, names);
}
constexpr column_group real(names_of_columns names)
{
    return columns_of(column_type::real, names);
}
constexpr column_group yes_no(names_of_columns names)
{
    return columns_of(column_type::yes_no, names);
}
/// Columns that nothing reads or writes. They keep the ordinals of the columns after them.
constexpr column_group unused(names_of_columns names)
{
    return columns_of(column_type::any, names);
}
/// The key of a round. It has a declared length because some engines index no other text.
constexpr column_group round_key(std::u16string_view name)
{
    column_group group = text({name});
    group.characters = round_key_digits;
    return group;
}

}  // namespace verdane::tables
