#include "transfer/check_command.h"

#include <algorithm>

#include "store/commits.h"
#include "store/DataEnvironment1.h"
#include "store/recovery/diary_problems.h"
#include "store/recovery/diary_snapshot.h"
#include "store/recovery/kept_copy.h"
#include "store/recovery/lost_rounds.h"
#include "transfer/console.h"
#include "transfer/store_argument.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView repair_option = u"--repair";
constexpr QStringView rounds_option = u"--make-rounds";

using problem_list = std::vector<diary_problem>;

struct wanted_repairs {
    bool repair = false;
    bool rounds = false;
};

QString advice(const diary_problem& problem)
{
    if (problem.repair)
        return in_language(u"--repair le répare", u"--repair repairs it");
    if (problem.in_structure || problem.needs_copy)
        return in_language(u"remettez une copie en place (restore)", u"put a copy back in place (restore)");
    if (problem.lost_shots)
        return in_language(u"--repair --make-rounds en fait des rondes",
                           u"--repair --make-rounds makes rounds of them");
    return in_language(u"à corriger dans Verdane, ou remettez une copie en place (restore)",
                       u"correct it in Verdane, or put a copy back in place (restore)");
}

void print_problems(const problem_list& problems)
{
    for (const diary_problem& problem : problems) {
        QString places = problem.places.join(u", "_s);
        if (problem.count > problem.places.size())
            places += u", …";
        print(u"%1 (%2 : %3)\n    %4"_s.arg(problem.what, QString::number(problem.count), places,
                                            advice(problem)));
    }
}

exit_status print_result(const problem_list& problems, const store_location& store)
{
    print_problems(problems);
    if (problems.empty()) {
        const diary_snapshot diary(store);
        print(in_language(u"Aucun problème : %1 rondes, %2 coups.", u"No problem: %1 rounds, %2 shots.")
                  .arg(diary.number(u"select count(*) from games"_s))
                  .arg(diary.number(u"select count(*) from Stat_rounds"_s)));
        return exit_status::done;
    }
    print(in_language(u"Problèmes : %1.", u"Problems: %1.").arg(problems.size()));
    return exit_status::problems;
}

bool can_repair(const problem_list& problems, const wanted_repairs& wanted)
{
    return std::any_of(problems.begin(), problems.end(), [&](const diary_problem& problem) {
        return problem.repair || (problem.lost_shots && wanted.rounds);
    });
}

void make_rounds(Connection1& store, const diary_snapshot& diary)
{
    for (const lost_round& round : make_lost_rounds(store, diary)) {
        if (round.refusal.isEmpty())
            print(
                in_language(u"Ronde faite de ses coups : %1", u"Round made of its shots: %1").arg(round.key));
        else
            print(in_language(u"Pas de ronde pour les coups de %1 : %2", u"No round for the shots of %1: %2")
                      .arg(round.key, round.refusal));
    }
}

/// All repairs are one commit.
void repair(Connection1& store, const problem_list& problems, const wanted_repairs& wanted)
{
    const diary_snapshot diary(store.location());
    const QString copy = keep_copy(store, u"repair"_s);
    print(in_language(u"Copie : %1", u"Copy: %1").arg(copy));
    single_commit together(store);
    if (wanted.rounds)
        make_rounds(store, diary);
    for (const diary_problem& problem : problems) {
        if (problem.repair)
            problem.repair(store);
    }
    together.finish();
}

exit_status check(const store_location& location, const wanted_repairs& wanted)
{
    Connection1& store = data_environment().connection;
    if (!store.OpenExisting(location))
        return refuse_without_diary(location);
    const problem_list problems = find_problems(store);
    if (!wanted.repair || !can_repair(problems, wanted))
        return print_result(problems, location);
    print_problems(problems);
    repair(store, problems, wanted);
    print(in_language(u"Réparé. Ce qui reste :", u"Repaired. What is left:"));
    return print_result(find_problems(store), location);
}

}  // namespace

exit_status run_check(const QStringList& arguments)
{
    QStringList stores = arguments;
    wanted_repairs wanted;
    wanted.repair = stores.removeAll(repair_option.toString()) > 0;
    wanted.rounds = stores.removeAll(rounds_option.toString()) > 0;
    const auto store = stores.size() == 1 ? store_of_argument(stores[0]) : std::nullopt;
    if (!store || (wanted.rounds && !wanted.repair))
        return refuse_usage();
    if (is_empty_file(*store))
        return refuse_without_diary(*store);
    return reported([&] {
        const exit_status status = check(*store, wanted);
        data_environment().connection.Close();
        return status;
    });
}

}  // namespace verdane
