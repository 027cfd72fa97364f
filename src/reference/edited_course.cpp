#include "reference/edited_course.h"

#include <array>

#include "base/numbers.h"
#include "records/course_entry.h"
#include "reference/course_general_page.h"
#include "reference/course_holes.h"
#include "scoring/limits.h"
#include "store/DataEnvironment1.h"
#include "store/tables/courses.h"

namespace verdane::edited_course {

using namespace Qt::StringLiterals;

namespace {

using box = course_general_page::box;

struct box_and_column {
    box which;
    int ordinal;
};

constexpr std::array<box_and_column, 6> columns_of_boxes = {{
    {box::name, tables::vrd_fields::name},
    {box::rating, tables::vrd_fields::rating},
    {box::slope, tables::vrd_fields::slope},
    {box::address_1, tables::vrd_fields::address_1},
    {box::address_2, tables::vrd_fields::address_2},
    {box::address_3, tables::vrd_fields::address_3},
}};

Recordset& course()
{
    return data_environment().rsvrd_fields;
}

Recordset& hole_row()
{
    return data_environment().rsfield_info;
}

int16 stored_figure(int ordinal)
{
    return hole_row().Fields(ordinal).int16_or_zero();
}

entered_course::hole_texts texts_of(const course_holes& holes, course_holes::figure which)
{
    entered_course::hole_texts texts;
    int index = 0;
    for (QString& text : texts)
        text = holes.text(which, index++);
    return texts;
}

/// The boxes of the general page.
entered_course entered(const course_general_page& general)
{
    entered_course course;
    course.name = general.text(box::name);
    course.rating = general.text(box::rating);
    course.slope = general.text(box::slope);
    course.address = {general.text(box::address_1), general.text(box::address_2),
                      general.text(box::address_3)};
    course.tee = general.tee();
    course.tee_text = general.tee_text();
    return course;
}

}  // namespace

void show(course_general_page& general, course_holes& holes)
{
    for (const auto& [which, ordinal] : columns_of_boxes)
        general.set_text(which, course().Fields(ordinal).text_or_empty());
    general.select_tee(plain(to_int16(course().Fields(tables::vrd_fields::code).trimmed().right(1))));
    general.lock_tee();
    for (int i = 0; i < hole_count; ++i) {
        holes.set(course_holes::yards, i, stored_figure(tables::field_info::yards_h(i + 1)));
        holes.set(course_holes::stroke_index, i, stored_figure(tables::field_info::hcp_h(i + 1)));
        holes.set(course_holes::par, i, stored_figure(tables::field_info::par_h(i + 1)));
    }
}

void write_key(const course_general_page& general, const QString& base)
{
    write_course_key(entered(general), base);
}

void write(const course_general_page& general, const course_holes& holes)
{
    entered_course course = entered(general);
    course.yards = texts_of(holes, course_holes::yards);
    course.stroke_indexes = texts_of(holes, course_holes::stroke_index);
    course.pars = texts_of(holes, course_holes::par);
    write_course(course);
}

bool commit()
{
    return commit_course();
}

void cancel()
{
    hole_row().CancelUpdate();
    course().CancelUpdate();
}

}  // namespace verdane::edited_course
