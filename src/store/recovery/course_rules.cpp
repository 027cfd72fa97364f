#include "store/recovery/course_rules.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

/// The rounds whose code of a course is that of none. A round has no code until its course was chosen.
QString rounds_of_unknown_courses(const QString& table, const QString& column)
{
    return u"select date from %1 where trim(coalesce(%2, '')) <> '' and trim(%2) not in "
           "(select trim(code) from vrd_fields where code is not null)"_s.arg(table, column);
}

}  // namespace

std::vector<diary_rule> rules_of_courses()
{
    return {
        {u"chaque terrain a ses trous dans field_info"_s,
         u"every course has its holes in field_info"_s,
         u"select coalesce(name_tee, code, '') from vrd_fields where code is null or trim(code) not in "
         "(select trim(FIELD_CODE) from field_info where FIELD_CODE is not null)"_s,
         {},
         true},
        {u"le terrain de chaque ronde existe"_s,
         u"the course of every round exists"_s,
         rounds_of_unknown_courses(u"games"_s, u"CODEF"_s) + u" union " +
             rounds_of_unknown_courses(u"games2"_s, u"FC"_s),
         {},
         true},
    };
}

}  // namespace verdane
