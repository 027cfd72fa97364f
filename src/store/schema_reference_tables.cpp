#include "store/schema_parts.h"

/// What rounds refer to, and the settings.
namespace verdane {

using namespace Qt::StringLiterals;

namespace {

/// Rating and slope are the text of their boxes; who needs a number reads the head of the text.
table courses()
{
    return {u"vrd_fields"_s, column_list()
                                 .text({u"code", u"name"})
                                 .spare(u"vrd_spare_a")
                                 .text({u"address_3", u"address_1", u"address_2"})
                                 .spare(u"vrd_spare_b")
                                 .text({u"name_tee", u"rating", u"slope", u"tee"})};
}

table holes()
{
    return {u"field_info"_s, column_list()
                                 .text({u"FIELD_CODE"})
                                 .by_hole({u"yards_"}, 0)
                                 .by_hole({u"hcp_"}, 0)
                                 .spare(u"info_spare")
                                 .by_hole({u"par_"}, 0)};
}

table partners()
{
    return {u"partners"_s, column_list()
                               .text({u"NAME", u"SURNAME", u"AD1", u"AD2", u"TEL", u"MAIL"})
                               .one(u"code", column_type::amount)};
}

table club_averages()
{
    return {u"sticks"_s,
            column_list()
                .run(u"avg_", 1, 14, column_type::real)
                .spares(u"sticks_spare_", 59)
                .run(u"shots_", 1, 14, column_type::count),
            1};
}

table club_names()
{
    return {u"sticknames"_s, column_list().run(u"club_", 1, 14, column_type::text), 1};
}

/// One row; 1 is French, 2 English, and any other value means that no language was chosen yet.
table settings()
{
    return {u"settings"_s, column_list().one(u"language", column_type::count), 1};
}

}  // namespace

std::vector<table> reference_tables()
{
    return {courses(), holes(), partners(), club_averages(), club_names(), settings()};
}

}  // namespace verdane
