#include "tests/server/own_server.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QThread>

#include <chrono>
#include <csignal>

#include "tests/support/engine_of_tests.h"
#include "tests/support/outside_connection.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

/// In steps of 4 MB instead of 64.
const QString growth_of_file = u"--innodb-autoextend-increment=4"_s;

QString folder()
{
    return qEnvironmentVariable("VERDANE_TEST_FOLDER");
}

/// The output of the script is that of the test; the server does not inherit it.
void run_script(const QStringList& arguments)
{
    const int status = QProcess::execute(QString::fromUtf8(VERDANE_TOOLS "/test_server"), arguments);
    if (status != 0)
        qFatal("tools/test_server %s ended with %d", qUtf8Printable(arguments.join(u' ')), status);
}

pid_t process_of_server()
{
    QFile file(folder() + u"/server.pid");
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no %s", qUtf8Printable(file.fileName()));
    return file.readAll().trimmed().toInt();
}

/// 1114: the table is full.
void insert_until_full(const QString& rows)
{
    administer(u"begin not atomic declare exit handler for 1114 begin end; loop insert into %1; end loop; "
               "end"_s.arg(rows));
}

}  // namespace

void stop_server()
{
    run_script({u"stop"_s, folder()});
}

void start_server(const QStringList& options)
{
    run_script(QStringList{u"start"_s, folder()} + options);
}

void signal_server(int number)
{
    if (::kill(process_of_server(), number) != 0)
        qFatal("signal %d was not sent to the server", number);
}

void administer(const QString& statement)
{
    outside_connection(store_location::source(administrator_source())).run_unchanged(statement);
}

void wait_until_a_table_is_awaited()
{
    const outside_connection server(store_location::source(administrator_source()));
    const QString waiting = u"select count(*) from information_schema.processlist where state like "
                            "'Waiting for table%'"_s;
    const QDeadlineTimer limit(std::chrono::seconds(30));
    while (!limit.hasExpired()) {
        QSqlQuery query = server.run_unchanged(waiting);
        if (all_rows(query)[0][0].toInt() > 0)
            return;
        QThread::msleep(50);
    }
    qFatal("no connection waits for a table");
}

QStringList room_for_mb(int megabytes)
{
    constexpr qint64 mb = 1024 * 1024;
    const qint64 present = QFileInfo(folder() + u"/data/ibdata1").size() / mb;
    return {u"--innodb-file-per-table=0"_s, growth_of_file,
            u"--innodb-data-file-path=ibdata1:12M:autoextend:max:%1M"_s.arg(present + megabytes)};
}

void fill_server(const QString& database, const QString& table)
{
    administer(u"create table mysql.filler (content text) engine=innodb"_s);
    // Large rows first, then rows that fit into the space that is left.
    for (const int size : {60000, 6000, 100})
        insert_until_full(u"mysql.filler values (repeat('x', %1))"_s.arg(size));
    insert_until_full(u"%1.%2 (date) values ('')"_s.arg(database, table));
}

void empty_server(const QString& database, const QString& table)
{
    stop_server();
    start_server({u"--innodb-file-per-table=0"_s, growth_of_file});
    administer(u"drop table mysql.filler"_s);
    administer(u"delete from %1.%2 where date = ''"_s.arg(database, table));
    stop_server();
}

}  // namespace verdane::testing
