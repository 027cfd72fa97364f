#include "reference/edited_course.h"

#include <array>

#include "base/numbers.h"
#include "base/text.h"
#include "records/course_keys.h"
#include "records/row_search.h"
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

bool find_again(const QString& code)
{
    Round_functions::find_first(course(), Round_functions::by_code, code);
    Round_functions::find_first(hole_row(), u"FIELD_CODE= ", code);
    return !(course().bof() || course().eof() || hole_row().bof() || hole_row().eof());
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
    const QString code = base + tee_mark(general.tee());
    course().Fields(tables::vrd_fields::code).set(code);
    hole_row().Fields(tables::field_info::FIELD_CODE).set(code);
    course().Fields(tables::vrd_fields::tee).set(in_capitals(general.tee_text()));
    course()
        .Fields(tables::vrd_fields::name_tee)
        .set(general.trimmed_text(box::name) + tee_mark(general.tee()));
}

void write(const course_general_page& general, const course_holes& holes)
{
    for (const auto& [which, ordinal] : columns_of_boxes)
        course().Fields(ordinal).set(general.text(which));
    for (int i = 0; i < hole_count; ++i) {
        hole_row().Fields(tables::field_info::yards_h(i + 1)).set(holes.text(course_holes::yards, i));
        hole_row().Fields(tables::field_info::hcp_h(i + 1)).set(holes.text(course_holes::stroke_index, i));
        hole_row().Fields(tables::field_info::par_h(i + 1)).set(holes.text(course_holes::par, i));
    }
}

bool commit()
{
    const QString code = course().Fields(tables::vrd_fields::code).text();
    hole_row().Update();
    course().Update();
    return find_again(code);
}

void cancel()
{
    hole_row().CancelUpdate();
    course().CancelUpdate();
}

}  // namespace verdane::edited_course
