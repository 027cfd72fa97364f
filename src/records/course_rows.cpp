#include "records/course_rows.h"

#include "base/language.h"
#include "records/row_search.h"
#include "scoring/Verdane_tools.h"
#include "store/DataEnvironment1.h"
#include "store/tables/courses.h"

namespace verdane::Round_functions {

namespace {

QString line_of_current_course(int16 width_of_name)
{
    Recordset& courses = data_environment().rsvrd_fields;
    QString name = courses.Fields(tables::vrd_fields::name).trimmed();
    const QString code = courses.Fields(tables::vrd_fields::code).trimmed();
    return Verdane_tools::pad_right(name, width_of_name) + u", " + Verdane_tools::tee_name(code.right(1));
}

}  // namespace

void open_courses()
{
    data_environment().rsfield_info.Open();
    data_environment().rsvrd_fields.Open();
}

void close_courses()
{
    data_environment().rsvrd_fields.Close();
    data_environment().rsfield_info.Close();
}

QStringList course_list_lines(int16 width_of_name)
{
    Recordset& courses = data_environment().rsvrd_fields;
    QStringList lines;
    if (courses.empty())
        return lines;
    for (courses.MoveFirst(); !courses.eof(); courses.MoveNext())
        lines << line_of_current_course(width_of_name);
    return lines;
}

void move_to_course(int list_index)
{
    Recordset& courses = data_environment().rsvrd_fields;
    courses.MoveFirst();
    courses.Move(list_index);
}

void find_holes_of_course(search_direction direction)
{
    find_holes_of_course(data_environment().rsvrd_fields.Fields(tables::vrd_fields::code).trimmed(),
                         direction);
}

void find_holes_of_course(const QString& code, search_direction direction)
{
    find_first(data_environment().rsfield_info, by_course, code, direction);
}

}  // namespace verdane::Round_functions

namespace verdane::Verdane_tools {

QString tee_name(QStringView digit)
{
    return tee_name_in(is_french, digit);
}

}  // namespace verdane::Verdane_tools
