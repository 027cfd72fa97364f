#include "transfer/console.h"

#include <QFileInfo>
#include <QTextStream>

#include "base/failure_text.h"
#include "base/run_time_failure.h"
#include "transfer/store_argument.h"

namespace verdane {

namespace {

exit_status report(const run_time_failure& failure)
{
    const exit_status status =
        failure.kind() == failure_kind::store_locked ? exit_status::in_use : exit_status::failed;
    return refuse(status, failure_text(failure, is_french) + u'\n' + failure.details());
}

}  // namespace

void print(const QString& line)
{
    QTextStream(stdout) << line << Qt::endl;
}

void print_warning(const QString& line)
{
    QTextStream(stderr) << line << Qt::endl;
}

QString counted(int number, const text_pair& one, const text_pair& several)
{
    const bool is_one = number == 1 || (is_french && number == 0);
    return QString::number(number) + u' ' + (is_one ? one : several).in(is_french);
}

exit_status refuse(exit_status status, const QString& line)
{
    print_warning(line);
    return status;
}

exit_status refuse_usage()
{
    return refuse(exit_status::usage, in_language(u"Ligne de commande incorrecte (verdane-store --help)",
                                                  u"Wrong command line (verdane-store --help)"));
}

exit_status refuse_without_diary(const store_location& store)
{
    return refuse(
        exit_status::no_diary,
        in_language(u"Il n'y a pas de journal : %1", u"There is no diary: %1").arg(argument_of_store(store)));
}

bool is_empty_file(const store_location& store)
{
    return store.where == store_location::place::file && QFileInfo(store.name).size() == 0;
}

exit_status reported(const std::function<exit_status()>& step)
{
    try {
        return step();
    } catch (const run_time_failure& failure) {
        return report(failure);
    }
}

}  // namespace verdane
