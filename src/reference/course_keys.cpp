#include "reference/course_keys.h"

#include "store/Recordset.h"
#include "store/tables/courses.h"

namespace verdane {

checked_array<course_key, most_courses> course_keys;

void keep_course_key(int index, Recordset& rsvrd_fields)
{
    course_keys[index] = {rsvrd_fields.Fields(tables::vrd_fields::name_tee).trimmed(),
                          rsvrd_fields.Fields(tables::vrd_fields::code).trimmed()};
}

void rebuild_course_keys(Recordset& rsvrd_fields)
{
    course_keys.clear();
    if (rsvrd_fields.empty())
        return;
    rsvrd_fields.MoveFirst();
    for (int index = 0; index < most_courses && !rsvrd_fields.eof(); ++index) {
        keep_course_key(index, rsvrd_fields);
        rsvrd_fields.MoveNext();
    }
}

void remember_new_course(Recordset& rsvrd_fields)
{
    const QString code = rsvrd_fields.Fields(tables::vrd_fields::code).trimmed();
    for (int index = 0; index < most_courses; ++index) {
        if (course_keys[index].code == code)
            return;
        if (course_keys[index].code.isEmpty())
            return keep_course_key(index, rsvrd_fields);
    }
}

}  // namespace verdane
