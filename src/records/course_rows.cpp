#include "records/course_rows.h"

#include "base/language.h"
#include "records/row_search.h"
#include "scoring/Verdane_tools.h"
#include "store/DataEnvironment1.h"
#include "store/tables/courses.h"

namespace verdane::Round_functions {

void move_to_course(int list_index)
{
    Recordset& courses = data_environment().rsvrd_fields;
    courses.MoveFirst();
    courses.Move(list_index);
}

void find_holes_of_course(search_direction direction)
{
    Recordset& holes = data_environment().rsfield_info;
    const QString code = data_environment().rsvrd_fields.Fields(tables::vrd_fields::code).trimmed();
    find_first(holes, u"FIELD_CODE =", code, direction);
}

}  // namespace verdane::Round_functions

namespace verdane::Verdane_tools {

QString tee_name(QStringView digit)
{
    return tee_name_in(is_french, digit);
}

}  // namespace verdane::Verdane_tools
