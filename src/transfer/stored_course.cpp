#include "transfer/stored_course.h"

#include "base/text.h"
#include "store/DataEnvironment1.h"

namespace verdane {

int open_courses()
{
    data_environment().rsvrd_fields.Open();
    data_environment().rsfield_info.Open();
    rebuild_course_keys(data_environment().rsvrd_fields);
    return data_environment().rsvrd_fields.RecordCount();
}

known_course known(const entered_course& course)
{
    return find_known_course(in_capitals(course.name), course.tee);
}

void add_course(const entered_course& course)
{
    data_environment().rsvrd_fields.AddNew();
    data_environment().rsfield_info.AddNew();
    write_course_key(course, known(course).base);
    write_course(course);
    commit_course();
    remember_new_course(data_environment().rsvrd_fields);
}

}  // namespace verdane
