#include "store/recovery/diary_rules.h"

#include "store/recovery/course_rules.h"
#include "store/recovery/round_rules.h"
#include "store/recovery/shot_rules.h"

namespace verdane {

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
