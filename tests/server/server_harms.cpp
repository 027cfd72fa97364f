#include "tests/server/server_harms.h"

#include <algorithm>
#include <csignal>
#include <memory>
#include <vector>

#include "tests/server/full_server.h"
#include "tests/server/own_server.h"
#include "tests/server/rights_of_account.h"
#include "tests/shell/program_run.h"
#include "tests/support/engine_of_tests.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

const auto nothing = [] {};

void restart()
{
    stop_server();
    start_with_small_table_space();
}

std::unique_ptr<full_server> no_space;

void use_up_space()
{
    no_space = std::make_unique<full_server>();
}

void make_space()
{
    no_space.reset();
    start_with_small_table_space();
}

void rename_table(const QString& from, const QString& to)
{
    administer(u"alter table %1.%2 rename to %1.%3"_s.arg(file_of(program_run::store_place()), from, to));
}

const std::vector<store_harm>& harms()
{
    using enum failure_kind;
    static const std::vector<store_harm> all{
        {u"stopped"_s, source_lost, nothing, stop_server, nothing, start_with_small_table_space},
        {u"killed"_s, source_lost, nothing, [] { signal_server(SIGKILL); }, nothing,
         start_with_small_table_space},
        {u"restarted"_s, source_lost, nothing, restart, nothing, nothing},
        {u"frozen"_s, source_lost, nothing, [] { signal_server(SIGSTOP); }, nothing,
         [] { signal_server(SIGCONT); }, longest_failure_ms, true},
        {u"full"_s, source_full, nothing, use_up_space, nothing, make_space},
        {u"without a table"_s, source_part, nothing, [] { rename_table(u"games2"_s, u"away"_s); }, nothing,
         [] { rename_table(u"away"_s, u"games2"_s); }},
        {u"without the right to write"_s, source_read_only, grant_rights_by_table, revoke_right_to_write,
         nothing, restore_rights},
    };
    return all;
}

}  // namespace

void prepare_for_harms()
{
    restart();
}

const store_harm& server_harm(const QString& name)
{
    const auto found = std::find_if(harms().begin(), harms().end(),
                                    [&name](const store_harm& each) { return each.name == name; });
    if (found == harms().end())
        qFatal("no harm is called %s", qUtf8Printable(name));
    return *found;
}

}  // namespace verdane::testing
