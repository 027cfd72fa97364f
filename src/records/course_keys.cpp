#include "records/course_keys.h"

#include <algorithm>

#include "base/failure_subject.h"
#include "base/text.h"
#include "store/Recordset.h"
#include "store/tables/courses.h"

namespace verdane {

checked_array<course_key, most_courses> course_keys;

namespace {

constexpr qsizetype tee_mark_length = 2;

QString without_tee_mark(const QString& text)
{
    return text.chopped(std::min(tee_mark_length, text.size()));
}

}  // namespace

void keep_course_key(int index, Recordset& rsvrd_fields)
{
    concerning([] { return failure_subject{.list = limited_list::courses}; },
               [&] {
                   course_keys[index] = {rsvrd_fields.Fields(tables::vrd_fields::name_tee).trimmed(),
                                         rsvrd_fields.Fields(tables::vrd_fields::code).trimmed()};
               });
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

void append_course_key(Recordset& rsvrd_fields)
{
    const QString code = rsvrd_fields.Fields(tables::vrd_fields::code).trimmed();
    for (int index = 0; index < most_courses; ++index) {
        if (course_keys[index].code == code)
            return;
        if (course_keys[index].code.isEmpty())
            return keep_course_key(index, rsvrd_fields);
    }
}

QString tee_mark(int tee)
{
    return u'-' + QString::number(tee);
}

QString name_with_tee(const QString& name_in_capitals, int tee)
{
    return name_in_capitals + tee_mark(tee);
}

known_course find_known_course(const QString& name_in_capitals, int tee)
{
    known_course known;
    for (int i = 0; i < most_courses; ++i) {
        const auto& [name_tee, code] = course_keys[i];
        if (name_tee.isEmpty())
            continue;
        const QString entry = in_capitals(name_tee);
        if (entry == name_with_tee(name_in_capitals, tee))
            known.duplicate = true;
        if (without_tee_mark(entry) == name_in_capitals)
            known.base = without_tee_mark(code);
    }
    return known;
}

}  // namespace verdane
