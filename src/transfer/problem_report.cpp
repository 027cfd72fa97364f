#include "transfer/problem_report.h"

#include "transfer/command.h"
#include "transfer/console.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

QString advice(const diary_problem& problem)
{
    if (problem.repair)
        return in_language(u"%1 le répare", u"%1 repairs it").arg(check_command.options[0].name);
    if (problem.in_structure || problem.needs_copy)
        return in_language(u"remettez une copie en place (restore)", u"put a copy back in place (restore)");
    if (problem.lost_shots) {
        const auto& [first, second] = check_command.options;
        return in_language(u"%1 %2 en fait des rondes", u"%1 %2 makes rounds of them")
            .arg(first.name, second.name);
    }
    return in_language(u"à corriger dans Verdane, ou remettez une copie en place (restore)",
                       u"correct it in Verdane, or put a copy back in place (restore)");
}

}  // namespace

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

}  // namespace verdane
