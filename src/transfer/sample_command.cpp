#include "transfer/command.h"

#include "store/commits.h"
#include "store/DataEnvironment1.h"
#include "transfer/console.h"
#include "transfer/empty_store.h"
#include "transfer/sample_season.h"
#include "transfer/store_argument.h"

namespace verdane {

namespace {

exit_status write_sample(const store_location& store)
{
    single_commit together(data_environment().connection);
    const int rounds = write_sample_season();
    together.finish();
    print(in_language(u"Saison inventée : %1 dans %2", u"Invented season: %1 in %2")
              .arg(counted(rounds, {u"ronde", u"round"}, {u"rondes", u"rounds"}), argument_of_store(store)));
    return exit_status::done;
}

exit_status run_sample(const QStringList& arguments, int)
{
    const auto store = arguments.size() == 1 ? store_of_argument(arguments[0]) : std::nullopt;
    if (!store)
        return refuse_usage();
    return reported([&] {
        return fill_empty_store(data_environment().connection, *store, [&] { return write_sample(*store); });
    });
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
