#pragma once

#include "store/recordset_settings.h"
#include "store/tables/declaration.h"

/// `vrd_fields` and `field_info`: the courses and their holes. Each tee of a golf course is a course of its
/// own. Both tables have one row for each course, with the same code.
namespace verdane::tables::vrd_fields {

inline constexpr column_list columns{
    text({u"code", u"name"}),
    unused({u"vrd_spare_a"}),
    text({u"address_3", u"address_1", u"address_2"}),
    unused({u"vrd_spare_b"}),
    text({u"name_tee", u"rating", u"slope", u"tee"}),
};

inline constexpr table_declaration table{.name = u"vrd_fields", .columns = columns.groups};

inline constexpr recordset_declaration rsvrd_fields{
    .name = u"rsvrd_fields", .source = u"select * from vrd_fields", .cursor = cursor_type::dynamic};

inline constexpr int code = columns.ordinal(u"code");
inline constexpr int name = columns.ordinal(u"name");
inline constexpr int address_1 = columns.ordinal(u"address_1");
inline constexpr int address_2 = columns.ordinal(u"address_2");
inline constexpr int address_3 = columns.ordinal(u"address_3");
inline constexpr int name_tee = columns.ordinal(u"name_tee");
/// The texts of their boxes; a reader takes the leading number.
inline constexpr int rating = columns.ordinal(u"rating");
inline constexpr int slope = columns.ordinal(u"slope");
inline constexpr int tee = columns.ordinal(u"tee");

static_assert(rating == 8 && tee == 10);

}  // namespace verdane::tables::vrd_fields

namespace verdane::tables::field_info {

inline constexpr column_list columns{
    text({u"FIELD_CODE"}),   count({u"yards_"}).by_hole().from_zero(), count({u"hcp_"}).by_hole().from_zero(),
    unused({u"info_spare"}), count({u"par_"}).by_hole().from_zero(),
};

inline constexpr table_declaration table{.name = u"field_info", .columns = columns.groups};

inline constexpr recordset_declaration rsfield_info{
    .name = u"rsfield_info", .source = u"select * from field_info", .cursor = cursor_type::dynamic};

inline constexpr int FIELD_CODE = columns.ordinal(u"FIELD_CODE");
inline constexpr column_run yards_h = columns.run(u"yards_");
/// The stroke index.
inline constexpr column_run hcp_h = columns.run(u"hcp_");
inline constexpr column_run par_h = columns.run(u"par_");

static_assert(hcp_h(hole_count) == 36 && par_h(hole_count) == 55);

}  // namespace verdane::tables::field_info
