#pragma once

#include <algorithm>
#include <array>
#include <concepts>
#include <span>
#include <string_view>

#include "store/tables/columns.h"

/// Each table of the store is declared once, in the headers of this folder. `schema.h` makes from a
/// declaration the statement that creates the table, the types and defaults of its columns and its fixed
/// rows. Code reaches a column by the constants next to the declaration, whose ordinals are computed from it
/// while compiling.
///
/// The order of the columns is part of the stored format.
namespace verdane::tables {

/// The ordinals of the columns of a numbered group that have one prefix.
struct column_run {
    int first = 0;
    int step = 1;

    /// `number` (a hole, a club or a band) counts from 1. A number beyond the last is not detected.
    constexpr int operator()(int number) const { return first + step * (number - 1); }
    /// For a group in parts, which count from 1, too.
    constexpr int operator()(int number, int part) const { return (*this)(number) + part - 1; }
};

/// All columns of a table in order. A name that the list lacks is an error of compilation.
template <std::size_t Groups>
struct column_list {
    std::array<column_group, Groups> groups;

    consteval int ordinal(std::u16string_view name) const { return place_of(name, false).first; }
    consteval column_run run(std::u16string_view prefix) const { return place_of(prefix, true); }
    consteval int size() const
    {
        int columns = 0;
        for (const column_group& group : groups)
            columns += group.size();
        return columns;
    }

private:
    consteval column_run place_of(std::u16string_view name, bool numbered) const
    {
        int before = 0;
        for (const column_group& group : groups) {
            const int width = std::max(group.parts, 1);
            for (int i = 0; i < group.name_count && numbered == (group.numbers > 0); ++i) {
                if (group.names[static_cast<std::size_t>(i)] == name)
                    return {before + i * width, group.name_count * width};
            }
            before += group.size();
        }
        throw "the table has no such column";
    }
};

template <std::same_as<column_group>... Groups>
column_list(Groups...) -> column_list<sizeof...(Groups)>;

struct index_declaration {
    /// Empty for a table without an index.
    std::u16string_view name;
    std::array<std::u16string_view, 3> columns{};
};

struct table_declaration {
    std::u16string_view name;
    std::span<const column_group> columns;
    /// The rows of a table of fixed size, which are created with it.
    int fixed_rows = 0;
    index_declaration index{};
};

}  // namespace verdane::tables
