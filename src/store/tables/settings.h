#pragma once

#include "store/recordset_settings.h"
#include "store/tables/declaration.h"

/// `settings`: one row with the language, 1 French and 2 English. Any other value means that no language was
/// chosen yet.
namespace verdane::tables::settings {

inline constexpr column_list columns{count({u"language"})};

inline constexpr table_declaration table{.name = u"settings", .columns = columns.groups, .fixed_rows = 1};

inline constexpr recordset_declaration rssettings{.name = u"rssettings", .source = u"select * from settings"};

inline constexpr int language = columns.ordinal(u"language");

}  // namespace verdane::tables::settings
