#include <QTest>

#include <csignal>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "base/failure_words.h"
#include "store/Connection1.h"
#include "store/schema.h"
#include "tests/server/full_server.h"
#include "tests/server/own_server.h"
#include "tests/support/engine_of_tests.h"
#include "tests/support/outside_connection.h"
#include "tests/support/reader.h"
#include "tests/transfer/stored_files.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// The rows of all tables whose number of rows is not fixed.
int rows_of(const test_store& store)
{
    const reader rows(store.location());
    int number = 0;
    for (const table& each : schema()) {
        if (each.fixed_rows == 0)
            number += rows.number(u"select count(*) from `%1`"_s.arg(each.name));
    }
    return number;
}

/// Starts the copy, and the harm while it waits for a table that another connection has locked. The tables
/// before it are written then, but not committed.
void interrupt_copy(store_run& run, const test_store& target, const std::function<void()>& harm)
{
    const outside_connection lock(store_location::source(administrator_source()));
    lock.run_unchanged(u"lock tables %1.partners read"_s.arg(file_of(target.location())));
    run.start();
    wait_until_a_table_is_awaited();
    harm();
}

}  // namespace

/// `verdane-store copy` to a server that fails.
class test_copy_failures : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        stop_server();
        start_with_small_table_space();
    }

    void a_copy_to_a_server_that_ends_is_reported_and_leaves_no_row_data()
    {
        QTest::addColumn<bool>("killed");
        QTest::newRow("stopped") << false;
        QTest::newRow("killed") << true;
    }

    void a_copy_to_a_server_that_ends_is_reported_and_leaves_no_row()
    {
        QFETCH(bool, killed);
        const copied_folder folder;
        const test_store target;
        Connection1().Open(target.location());
        store_run run({u"copy"_s, file_argument(folder.diary), argument_of(target)});
        interrupt_copy(run, target, [killed] {
            if (killed)
                signal_server(SIGKILL);
            else
                stop_server();
        });
        const std::optional<int> ended = run.exit_status();
        start_with_small_table_space();
        QCOMPARE(ended, status(exit_status::failed));
        const QString errors = run.errors();
        QVERIFY2(errors.startsWith(failure_words(failure_kind::source_lost).english), qPrintable(errors));
        QVERIFY2(!run.output().contains(u"Copied"), qPrintable(run.output()));
        QVERIFY2(run.output().contains(u"Stat_rounds: "), qPrintable(run.output()));
        QCOMPARE(rows_of(target), 0);
        QCOMPARE(store_run({u"copy"_s, file_argument(folder.diary), argument_of(target)}).run(),
                 status(exit_status::done));
    }

    void a_copy_to_a_server_whose_disk_is_full_is_reported_and_leaves_no_row()
    {
        const copied_folder folder;
        const test_store target;
        Connection1().Open(target.location());
        auto no_space = std::make_unique<full_server>();
        store_run run({u"copy"_s, file_argument(folder.diary), argument_of(target)});
        const std::optional<int> ended = run.run();
        const int rows = rows_of(target);
        no_space.reset();
        start_with_small_table_space();
        QCOMPARE(ended, status(exit_status::failed));
        const QString errors = run.errors();
        QVERIFY2(errors.contains(failure_words(failure_kind::source_full).english), qPrintable(errors));
        QCOMPARE(rows, 0);
        QCOMPARE(store_run({u"copy"_s, file_argument(folder.diary), argument_of(target)}).run(),
                 status(exit_status::done));
    }
};

QTEST_GUILESS_MAIN(test_copy_failures)
#include "test_copy_failures.moc"
