#pragma once

#include "store/recordset_settings.h"
#include "store/tables/declaration.h"

/// `partners`: the people the user plays with.
namespace verdane::tables::partners {

inline constexpr column_list columns{
    text({u"NAME", u"SURNAME", u"AD1", u"AD2", u"TEL", u"MAIL"}),
    amount({u"code"}),
};

inline constexpr table_declaration table{.name = u"partners", .columns = columns.groups};

inline constexpr recordset_declaration rspartners{.name = u"rspartners",
                                                  .source = u"select * from partners order by name",
                                                  .lock = lock_type::batch_optimistic,
                                                  .location = cursor_location::client};

inline constexpr int NAME = columns.ordinal(u"NAME");
inline constexpr int SURNAME = columns.ordinal(u"SURNAME");
/// The address.
inline constexpr int AD1 = columns.ordinal(u"AD1");
/// The town.
inline constexpr int AD2 = columns.ordinal(u"AD2");
inline constexpr int TEL = columns.ordinal(u"TEL");
inline constexpr int MAIL = columns.ordinal(u"MAIL");
/// The number with which a round refers to the partner.
inline constexpr int code = columns.ordinal(u"code");

static_assert(code == 6);

}  // namespace verdane::tables::partners
