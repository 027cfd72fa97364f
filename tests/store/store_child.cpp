// A second program for the tests: opens a store like Verdane and reports the kind of failure in its exit
// status. Tests kill it, remove its permissions or limit the size of its files.
#include <QCoreApplication>
#include <QFile>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <sys/resource.h>
#include <unistd.h>

#include "store/Connection1.h"
#include "store/Recordset.h"
#include "store/recovery/dated_copies.h"
#include "tests/store/store_child.h"
#include "tests/support/engine_of_tests.h"

using namespace verdane;
using namespace Qt::StringLiterals;

namespace {

void become_nobody()
{
    // Root has every permission, so it changes to a user without any.
    if (geteuid() == 0 && (setgid(65534) != 0 || setuid(65534) != 0))
        std::exit(testing::child_broken);
}

/// Limits the size of files to that number of bytes, which has the effect of a full disk and needs no
/// permission.
void limit_files(const char* bytes)
{
    std::signal(SIGXFSZ, SIG_IGN);
    const rlim_t most = std::strtoul(bytes, nullptr, 10);
    const rlimit limit{most, most};
    if (setrlimit(RLIMIT_FSIZE, &limit) != 0)
        std::exit(testing::child_broken);
}

/// Lets the system kill this process when it writes beyond the limit.
void die_at_limit()
{
    std::signal(SIGXFSZ, SIG_DFL);
}

void say(int number)
{
    std::printf("%d\n", number);
    std::fflush(stdout);
}

/// Adds partners until the process ends, and prints their number after each commit.
void write_partners(Connection1& connection)
{
    Recordset partners(connection, {u"rspartners"_s, u"select * from partners"_s});
    partners.Open();
    const QString filler(500, u'x');
    for (int code = partners.RecordCount() + 1;; ++code) {
        partners.AddNew();
        partners.Fields(u"name").set(QString::number(code));
        partners.Fields(u"ad1").set(filler);
        partners.Fields(u"code").set(code);
        partners.Update();
        say(code);
    }
}

void run(const QByteArray& mode, const store_location& place, const char* argument)
{
    Connection1 connection;
    if (mode == "nobody" || mode == "copy_as_nobody")
        become_nobody();
    connection.Open(place);
    if (mode == "write" || mode == "fill") {
        if (mode == "fill")
            limit_files(argument);
        write_partners(connection);
    }
    if (mode.startsWith("copy")) {
        if (mode != "copy_as_nobody")
            limit_files(argument);
        if (mode == "copy_until_killed")
            die_at_limit();
        write_dated_copy(connection.path(), testing::day_of_child);
    }
    if (mode == "hold") {
        say(0);
        std::getchar();
    }
}

}  // namespace

int main(int count, char** arguments)
{
    const QCoreApplication application(count, arguments);
    try {
        run(arguments[1], testing::store_called(QFile::decodeName(arguments[2])),
            count > 3 ? arguments[3] : "");
    } catch (const run_time_failure& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return testing::child_failed + static_cast<int>(failure.kind());
    }
    return 0;
}
