#include <QElapsedTimer>
#include <QTest>
#include <QThread>

#include <memory>

#include "store/Connection1.h"
#include "store/engines/odbc_link.h"
#include "tests/server/own_server.h"
#include "tests/support/engine_of_tests.h"
#include "tests/support/failures.h"
#include "tests/support/outside_connection.h"
#include "tests/support/reader.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

/// Statements of the program while other connections have locked what they need.
class test_server_locks : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void waiting_for_a_table_and_then_for_a_row_fails_as_locked_and_the_connection_stays()
    {
        const store_location place = new_program_store();
        Connection1 program;
        program.Open(place);
        program.Execute(u"insert into partners (NAME, code) values ('a', 1)"_s);
        const outside_connection row_lock(place);
        row_lock.run_unchanged(u"begin"_s);
        row_lock.run_unchanged(u"update partners set code = 2"_s);
        // The change of the table waits for the row lock and keeps the program waiting. It gives up a second
        // before the program would.
        const std::unique_ptr<QThread> table_lock(QThread::create([&] {
            administer(u"begin not atomic declare exit handler for 1205 begin end; "
                       "set session lock_wait_timeout = %1; alter table %2.partners comment 'x'; end"_s
                           .arg(source_lock_time_out_s - 1)
                           .arg(file_of(place)));
        }));
        table_lock->start();
        wait_until_a_table_is_awaited();
        QElapsedTimer time;
        time.start();
        const auto failed = failure_of([&] { program.Execute(u"update partners set code = 3"_s); });
        const qint64 waited = time.elapsed();
        table_lock->wait();
        row_lock.run_unchanged(u"rollback"_s);
        QVERIFY(failed == failure_kind::store_locked);
        QVERIFY2(waited > 1000 * (source_lock_time_out_s + 2), qPrintable(QString::number(waited)));
        program.Execute(u"update partners set code = 4"_s);
        QCOMPARE(reader(place).number(u"select code from partners"_s), 4);
        program.Close();
        remove_store_place(place);
    }
};

QTEST_GUILESS_MAIN(test_server_locks)
#include "test_server_locks.moc"
