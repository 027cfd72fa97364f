#include "tests/support/store_invariants.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

/// A condition, and a statement that counts its violations.
struct invariant {
    QString sentence;
    QString violations;
};

const std::vector<invariant>& invariants()
{
    static const std::vector<invariant> all{
        {u"every key has 14 digits"_s,
         u"select count(*) from games where date is null or length(date) <> 14 or date glob '*[^0-9]*'"_s},
        {u"every round has one row of games2"_s,
         u"select count(*) from games where (select count(*) from games2 "
         "where games2.date = games.date) <> 1"_s},
        {u"every row of games2 has its round"_s,
         u"select count(*) from games2 where date is null or date not in (select date from games)"_s},
        {u"every round has one row of cost"_s,
         u"select count(*) from games where (select count(*) from cost where cost.date = games.date) <> 1"_s},
        {u"every row of cost has its round"_s,
         u"select count(*) from cost where date is null or date not in (select date from games)"_s},
        {u"every shot has its round"_s,
         u"select count(*) from Stat_rounds where date not in (select date from games)"_s},
        {u"every shot is on a hole"_s, u"select count(*) from Stat_rounds where hole not between 1 and 18"_s},
        {u"no two shots of a hole have one number"_s,
         u"select count(*) from (select 1 from Stat_rounds group by date, hole, shot having count(*) > 1)"_s},
        {u"codes of shots are in their sets"_s,
         u"select count(*) from Stat_rounds where coalesce(stickval, 0) not between 0 and 14 or "
         "coalesce(fairval, 0) not between 0 and 3 or coalesce(penval, 0) not between 0 and 4 or "
         "coalesce(shot_type_value, 0) not between 0 and 3"_s},
        {u"the kind in words is the kind in code"_s,
         u"select count(*) from Stat_rounds where (shot_type_value = 1 and shot_type <> 'Long') or "
         "(shot_type_value = 2 and shot_type not in ('Approche', 'Approach')) or "
         "(shot_type_value = 3 and shot_type <> 'Putt')"_s},
        {u"the position in words is the position in code"_s,
         u"select count(*) from Stat_rounds where (fairval = 1 and faireway not in ('Dans l''allé', "
         "'Fairway')) or "
         "(fairval = 2 and faireway not in ('Gauche', 'Left')) or "
         "(fairval = 3 and faireway not in ('Droite', 'Right')) or "
         "(shot_type_value = 3 and (coalesce(fairval, 0) = 0) <> (coalesce(faireway, ' ') = ' '))"_s},
        {u"the penalty in words is the penalty in code"_s,
         u"select count(*) from Stat_rounds where (penval = 1 and penality not in ('Eau', 'Water Hazard')) "
         u"or "
         "(penval = 2 and penality not in ('Balle perdue', 'Lost Ball')) or "
         "(penval = 3 and penality not in ('Règlement', 'Rules')) or "
         "(penval = 4 and penality not in ('Hors limites', 'Out of Bounds'))"_s},
        {u"a penalty adds one stroke"_s, u"select count(*) from Stat_rounds where coalesce(addpen, 0) <> "
                                         "(coalesce(penval, 0) between 1 and 4)"_s},
        {u"units are words of one of the languages"_s,
         u"select count(*) from Stat_rounds where trim(coalesce(unit, '')) not in ('', 'Pieds', 'Feets', "
         "'Verges', "
         "'Yards')"_s},
        {u"no distance is below zero"_s,
         u"select count(*) from Stat_rounds where coalesce(before, 0) < 0 or coalesce(after, 0) < 0"_s},
    };
    return all;
}

}  // namespace

QStringList broken_invariants(const reader& store)
{
    QStringList broken;
    for (const invariant& rule : invariants()) {
        const int violations = store.number(rule.violations);
        if (violations > 0)
            broken << u"%1: %2 violations"_s.arg(rule.sentence).arg(violations);
    }
    return broken;
}

}  // namespace verdane::testing
