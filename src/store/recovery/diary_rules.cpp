#include "store/recovery/diary_rules.h"

#include "store/recovery/round_rules.h"
#include "store/recovery/shot_rules.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

/// The rounds whose course code is that of no course. A round has no code until its course is chosen.
QString rounds_of_unknown_courses(const QString& table, const QString& column)
{
    return u"select date from %1 where trim(coalesce(%2, '')) <> '' and trim(%2) not in "
           u"(select trim(code) from vrd_fields where code is not null)"_s.arg(table, column);
}

/// The conditions of the courses, and of the courses of rounds.
std::vector<diary_rule> rules_of_courses()
{
    return {
        {u"chaque terrain a ses trous dans field_info"_s,
         u"every course has its holes in field_info"_s,
         u"select coalesce(name_tee, code, '') from vrd_fields where code is null or trim(code) not in "
         u"(select trim(FIELD_CODE) from field_info where FIELD_CODE is not null)"_s,
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

}  // namespace

const std::vector<diary_rule>& diary_rules()
{
    static const std::vector<diary_rule> rules = [] {
        std::vector<diary_rule> all = rules_of_rounds();
        for (const auto& more : {rules_of_shots(), rules_of_courses()})
            all.insert(all.end(), more.begin(), more.end());
        return all;
    }();
    return rules;
}

}  // namespace verdane
