#include "tests/support/store_invariants.h"

#include "store/recovery/diary_rules.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

QStringList broken_invariants(const reader& store)
{
    QStringList broken;
    for (const diary_rule& rule : diary_rules()) {
        const auto violations = store.rows(rule.violations);
        if (!violations.empty())
            broken << u"%1: %2 violations, the first is %3"_s.arg(rule.sentence_english)
                          .arg(violations.size())
                          .arg(violations[0][0].toString());
    }
    return broken;
}

}  // namespace verdane::testing
