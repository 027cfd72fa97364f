#pragma once

#include "store/recordset_settings.h"
#include "store/tables/declaration.h"

/// `hand`: the score differentials from which the handicap is computed, rewritten by each run.
namespace verdane::tables::hand {

inline constexpr column_list columns{real({u"hnd"})};

inline constexpr table_declaration table{.name = u"hand", .columns = columns.groups};

inline constexpr recordset_declaration rshand{.name = u"rshand",
                                              .source = u"select hnd from HAND ",
                                              .lock = lock_type::batch_optimistic,
                                              .location = cursor_location::client};
/// The statement that is in force after a run of a statistic has set another one.
inline constexpr QStringView source_after_run = u"select * from hand";

inline constexpr int hnd = columns.ordinal(u"hnd");

}  // namespace verdane::tables::hand

/// `Cryst_hand`: no code uses it.
namespace verdane::tables::Cryst_hand {

inline constexpr table_declaration table{.name = u"Cryst_hand", .columns = hand::columns.groups};

inline constexpr recordset_declaration rscryst_hand{.name = u"rscryst_hand",
                                                    .source = u"select * from Cryst_hand"};

}  // namespace verdane::tables::Cryst_hand
