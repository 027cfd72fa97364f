#pragma once

#include "store/recordset_settings.h"
#include "store/tables/declaration.h"

/// `cost`: the twelve amounts of money of a round, and `r_cost`, from which they are printed. Amounts are
/// whole units of money.
namespace verdane::tables {

/// The amounts of both tables, in the order of the boxes of the cost window.
inline constexpr column_group round_amounts =
    amount({u"fg", u"cm", u"vt", u"ft", u"ba", u"tee", u"tex", u"nrt", u"lg", u"bs", u"ln", u"au"})
        .from_zero();

}  // namespace verdane::tables

namespace verdane::tables::cost {

inline constexpr column_list columns{round_key(u"date"), round_amounts};

inline constexpr table_declaration table{
    .name = u"cost", .columns = columns.groups, .index = {u"cost_by_date", {u"date"}}};

inline constexpr recordset_declaration rscost{.name = u"rscost",
                                              .source = u"select * from cost",
                                              .location = cursor_location::client,
                                              .cache_rows = 400};
/// The statement with which the amounts of a round are deleted. It stays in force.
inline constexpr QStringView source_of_removal = u"select * from cost order by date";

inline constexpr int date = columns.ordinal(u"date");
inline constexpr int first_amount = columns.ordinal(u"fg");
inline constexpr int last_amount = columns.ordinal(u"au");
inline constexpr int amount_count = round_amounts.size();

static_assert(first_amount == 1 && last_amount == 12);

}  // namespace verdane::tables::cost

/// One row for each round of the selection, rewritten by each run.
namespace verdane::tables::r_cost {

inline constexpr column_list columns{
    round_key(u"date"),
    round_amounts,
    unused({u"cost_spare"}),
    count({u"round_count"}),
};

inline constexpr table_declaration table{.name = u"r_cost", .columns = columns.groups};

inline constexpr recordset_declaration rsr_cost{
    .name = u"rsr_cost", .source = u"select * from r_cost", .cursor = cursor_type::dynamic, .cache_rows = 10};

/// The number of rows, in the first row only.
inline constexpr int round_count = columns.ordinal(u"round_count");

static_assert(round_count == 14);

}  // namespace verdane::tables::r_cost
