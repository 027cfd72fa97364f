#include "transfer/command.h"

#include <algorithm>

#include "store/commits.h"
#include "store/DataEnvironment1.h"
#include "store/recovery/diary_problems.h"
#include "store/recovery/diary_snapshot.h"
#include "store/recovery/kept_copy.h"
#include "store/recovery/lost_rounds.h"
#include "store/recovery/sole_use.h"
#include "transfer/console.h"
#include "transfer/problem_report.h"
#include "transfer/store_argument.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

/// The number of options that are given for each step.
constexpr int with_repair = 1;
constexpr int with_rounds = 2;

using round_list = std::vector<lost_round>;

exit_status print_result(const problem_list& problems, const diary_snapshot& diary)
{
    print_problems(problems);
    if (problems.empty()) {
        const int rounds = diary.number(u"select count(*) from games"_s);
        const int shots = diary.number(u"select count(*) from Stat_rounds"_s);
        print(in_language(u"Aucun problème : %1, %2.", u"No problem: %1, %2.")
                  .arg(counted(rounds, {u"ronde", u"round"}, {u"rondes", u"rounds"}),
                       counted(shots, {u"coup", u"shot"}, {u"coups", u"shots"})));
        return exit_status::done;
    }
    print(in_language(u"Problèmes : %1.", u"Problems: %1.").arg(problems.size()));
    return exit_status::problems;
}

exit_status print_result(const Connection1& store)
{
    const diary_snapshot diary(store.location());
    return print_result(find_problems(store, diary), diary);
}

bool can_repair(const problem_list& problems, const round_list& rounds)
{
    return std::any_of(problems.begin(), problems.end(),
                       [](const diary_problem& problem) { return problem.repair != nullptr; }) ||
           std::any_of(rounds.begin(), rounds.end(),
                       [](const lost_round& round) { return round.refusal.isEmpty(); });
}

void print_refusals(const round_list& rounds)
{
    for (const lost_round& round : rounds) {
        if (!round.refusal.isEmpty())
            print(in_language(u"Pas de ronde pour les coups de %1 : %2", u"No round for the shots of %1: %2")
                      .arg(round.key, round.refusal));
    }
}

void make_rounds(Connection1& store, const round_list& rounds)
{
    for (const lost_round& round : rounds) {
        if (round.refusal.isEmpty())
            make_round(store, round);
    }
}

void print_made(const round_list& rounds)
{
    for (const lost_round& round : rounds) {
        if (round.refusal.isEmpty())
            print(
                in_language(u"Ronde faite de ses coups : %1", u"Round made of its shots: %1").arg(round.key));
    }
}

void repair(Connection1& store, const problem_list& problems, repair_step step)
{
    for (const diary_problem& problem : problems) {
        if (problem.repair && problem.step == step)
            problem.repair(store);
    }
}

/// The repairs of rows are one commit.
void repair(Connection1& store, const problem_list& problems, const round_list& rounds)
{
    const QString copy = keep_copy(store, u"repair"_s);
    print(in_language(u"Copie : %1", u"Copy: %1").arg(copy));
    repair(store, problems, repair_step::indexes);
    single_commit together(store);
    make_rounds(store, rounds);
    repair(store, problems, repair_step::rows);
    together.finish();
    print_made(rounds);
    repair(store, problems, repair_step::new_indexes);
}

exit_status check(const store_location& location, int options)
{
    Connection1& store = data_environment().connection;
    if (!open_alone(store, location, soundness_check::later))
        return refuse_without_diary(location);
    // Fails if more than indexes is damaged.
    store.damaged_indexes();
    const diary_snapshot diary(location);
    const problem_list problems = find_problems(store, diary);
    const bool has_structure = problems.empty() || !problems.front().in_structure;
    const round_list rounds =
        options == with_rounds && has_structure ? find_lost_rounds(diary) : round_list();
    print_refusals(rounds);
    if (options < with_repair || !can_repair(problems, rounds))
        return print_result(problems, diary);
    print_problems(problems);
    repair(store, problems, rounds);
    print(in_language(u"Réparé. Ce qui reste :", u"Repaired. What is left:"));
    return print_result(store);
}

exit_status run_check(const QStringList& arguments, int options)
{
    const auto store = arguments.size() == 1 ? store_of_argument(arguments[0]) : std::nullopt;
    if (!store)
        return refuse_usage();
    if (is_empty_file(*store))
        return refuse_without_diary(*store);
    return reported([&] {
        const exit_status status = check(*store, options);
        data_environment().connection.Close();
        return status;
    });
}

}  // namespace

const command check_command{
    u"check",
    {u"JOURNAL", u"STORE"},
    {u"vérifie un journal et dit comment réparer ce qui ne va pas",
     u"checks a diary and reports how to repair what is wrong"},
    {{{u"--repair",
       {u"répare ce qui ne demande aucun choix, après avoir fait une copie",
        u"repairs what needs no choice, after making a copy"}},
      {u"--make-rounds",
       {u"fait aussi une ronde des coups qui n'en ont pas", u"also makes a round of shots that have none"}}}},
    run_check};

}  // namespace verdane
