#include "transfer/command.h"

#include "store/commits.h"
#include "store/DataEnvironment1.h"
#include "transfer/console.h"
#include "transfer/empty_store.h"
#include "transfer/sample_season.h"
#include "transfer/store_argument.h"

namespace verdane {

namespace {

/// Returns the number of rounds.
int write_rounds()
{
    single_commit together(data_environment().connection);
    const int rounds = write_sample_season();
    together.finish();
    return rounds;
}

exit_status write_sample(const store_location& store)
{
    int rounds = 0;
    const exit_status status =
        fill_empty_store(data_environment().connection, store, [&] { rounds = write_rounds(); });
    if (status == exit_status::done)
        print(in_language(u"Saison inventée : %1 dans %2", u"Invented season: %1 in %2")
                  .arg(counted(rounds, {u"ronde", u"round"}, {u"rondes", u"rounds"}),
                       argument_of_store(store)));
    return status;
}

exit_status run_sample(const QStringList& arguments, int)
{
    const auto store = arguments.size() == 1 ? store_of_argument(arguments[0]) : std::nullopt;
    if (!store)
        return refuse_usage();
    return reported([&] { return write_sample(*store); });
}

}  // namespace

const command sample_command{
    u"sample",
    {u"JOURNAL", u"STORE"},
    {u"écrit une saison inventée dans un journal vide ou nouveau, pour essayer Verdane",
     u"writes an invented season into an empty or new diary, to try Verdane"},
    {},
    run_sample};

}  // namespace verdane
