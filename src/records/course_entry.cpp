#include "records/course_entry.h"

#include "base/text.h"
#include "records/course_rows.h"
#include "records/row_search.h"
#include "store/DataEnvironment1.h"
#include "store/tables/courses.h"

namespace verdane {

namespace {

namespace vrd_fields = tables::vrd_fields;
namespace field_info = tables::field_info;

Recordset& course_row()
{
    return data_environment().rsvrd_fields;
}

Recordset& hole_row()
{
    return data_environment().rsfield_info;
}

bool find_again(const QString& code)
{
    Round_functions::find_first(course_row(), Round_functions::by_code, code);
    Round_functions::find_holes_of_course(code);
    return !(course_row().bof() || course_row().eof() || hole_row().bof() || hole_row().eof());
}

}  // namespace

void write_course_key(const entered_course& course, const QString& base)
{
    const QStringView name = trimmed_blanks(course.name);
    const QString code = (base.isEmpty() ? in_capitals(name) : base) + tee_mark(course.tee);
    course_row().Fields(vrd_fields::code).set(code);
    hole_row().Fields(field_info::FIELD_CODE).set(code);
    course_row().Fields(vrd_fields::tee).set(in_capitals(course.tee_text));
    course_row().Fields(vrd_fields::name_tee).set(QString(name + tee_mark(course.tee)));
}

void write_course(const entered_course& course)
{
    course_row().Fields(vrd_fields::name).set(course.name);
    course_row().Fields(vrd_fields::rating).set(course.rating);
    course_row().Fields(vrd_fields::slope).set(course.slope);
    course_row().Fields(vrd_fields::address_1).set(course.address[0]);
    course_row().Fields(vrd_fields::address_2).set(course.address[1]);
    course_row().Fields(vrd_fields::address_3).set(course.address[2]);
    for (int hole = 1; hole <= hole_count; ++hole) {
        const auto index = static_cast<std::size_t>(hole - 1);
        hole_row().Fields(field_info::yards_h(hole)).set(course.yards[index]);
        hole_row().Fields(field_info::hcp_h(hole)).set(course.stroke_indexes[index]);
        hole_row().Fields(field_info::par_h(hole)).set(course.pars[index]);
    }
}

bool commit_course()
{
    const QString code = course_row().Fields(vrd_fields::code).text();
    hole_row().Update();
    course_row().Update();
    return find_again(code);
}

known_course find_known_course(const entered_course& course)
{
    return find_known_course(in_capitals(course.name), course.tee);
}

void add_course(const entered_course& course)
{
    course_row().AddNew();
    hole_row().AddNew();
    write_course_key(course, find_known_course(course).base);
    write_course(course);
    commit_course();
    append_course_key(course_row());
}

}  // namespace verdane
