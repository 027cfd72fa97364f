#include "store/recovery/diary_problems.h"

#include <algorithm>

#include "base/language.h"
#include "base/run_time_failure.h"
#include "store/Connection1.h"
#include "store/engines/source_tables.h"
#include "store/fresh_store.h"
#include "store/recovery/diary_rules.h"
#include "store/recovery/diary_snapshot.h"
#include "store/recovery/shot_rules.h"
#include "store/schema.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t most_places = 5;

using problem_list = std::vector<diary_problem>;

/// The tables of the snapshot, with their columns in order.
source_tables tables_in(const diary_snapshot& diary)
{
    source_tables found;
    for (const auto& row :
         diary.rows(u"select m.name, p.name from sqlite_master m join pragma_table_info(m.name) p "
                    u"where m.type = 'table' order by m.name, p.cid"_s))
        found[row[0].toString().toLower()].push_back({row[1].toString()});
    return found;
}

void find_in_structure(const diary_snapshot& diary, problem_list& problems)
{
    const source_tables found = tables_in(diary);
    const QStringList missing = missing_tables(found);
    if (!missing.isEmpty())
        problems.push_back({in_language(u"des tables manquent", u"tables are missing"),
                            missing,
                            static_cast<int>(missing.size()),
                            {},
                            true});
    try {
        check_tables(found);
    } catch (const run_time_failure& wrong) {
        problems.push_back({in_language(u"une colonne manque ou n'est pas à sa place",
                                        u"a column is missing or in another place"),
                            {wrong.details()},
                            1,
                            {},
                            true});
    }
}

/// A table with several fixed rows has the results of the last report, which can be replaced. A table with a
/// single row has settings of the golfer: with two rows, the user must decide which one is right.
bool can_renew(const table& fixed, int rows)
{
    return fixed.fixed_rows > 1 || rows == 0;
}

void find_in_fixed_rows(const diary_snapshot& diary, problem_list& problems)
{
    for (const table& each : schema()) {
        const int rows =
            each.fixed_rows == 0 ? 0 : diary.number(u"select count(*) from `%1`"_s.arg(each.name));
        if (rows == each.fixed_rows)
            continue;
        diary_problem problem{in_language(u"une table n'a pas le bon nombre de lignes",
                                          u"a table has the wrong number of rows"),
                              {u"%1: %2 ≠ %3"_s.arg(each.name).arg(rows).arg(each.fixed_rows)},
                              1,
                              {}};
        if (can_renew(each, rows))
            problem.repair = [&each](Connection1& store) {
                renew_fixed_rows(
                    store.engine(), [&store](const QString& statement) { store.Execute(statement); }, each);
            };
        problems.push_back(problem);
    }
}

void find_in_indexes(const Connection1& store, problem_list& problems)
{
    const QStringList damaged = store.damaged_indexes();
    if (!damaged.isEmpty()) {
        diary_problem problem{
            in_language(u"un index diffère de sa table", u"an index differs from its table"), damaged,
            static_cast<int>(damaged.size()), [](Connection1& repaired) { repaired.rebuild_indexes(); }};
        problem.step = repair_step::indexes;
        problems.push_back(problem);
    }
    for (const index_creation& index : missing_indexes(store.engine())) {
        diary_problem problem{in_language(u"un index manque", u"an index is missing"),
                              {index.name},
                              1,
                              [index](Connection1& repaired) { repaired.Execute(index.statement); }};
        problem.step = repair_step::new_indexes;
        problems.push_back(problem);
    }
}

void find_violations(const diary_snapshot& diary, const diary_rule& rule, problem_list& problems)
{
    const auto violations = diary.rows(rule.violations);
    if (violations.empty())
        return;
    diary_problem problem{in_language(u"non respecté : ", u"not met: ") + rule.sentence(),
                          {},
                          static_cast<int>(violations.size()),
                          {}};
    for (std::size_t i = 0; i < std::min(most_places, violations.size()); ++i)
        problem.places << violations[i][0].toString();
    problem.lost_shots = rule.violations == rule_of_lost_shots().violations;
    problem.needs_copy = rule.needs_copy;
    if (!rule.repairs.isEmpty())
        problem.repair = [repairs = rule.repairs](Connection1& store) {
            for (const QString& statement : repairs)
                store.Execute(statement);
        };
    problems.push_back(problem);
}

}  // namespace

std::vector<diary_problem> find_problems(const Connection1& store, const diary_snapshot& diary)
{
    problem_list problems;
    find_in_structure(diary, problems);
    if (!problems.empty())
        return problems;
    find_in_fixed_rows(diary, problems);
    find_in_indexes(store, problems);
    for (const diary_rule& rule : diary_rules())
        find_violations(diary, rule, problems);
    return problems;
}

}  // namespace verdane
