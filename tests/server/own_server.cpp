#include "tests/server/own_server.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QThread>

#include <chrono>
#include <csignal>

#include "tests/support/engine_of_tests.h"
#include "tests/support/outside_connection.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

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

/// The state in the description of a thread: it follows the name of the program, which is in parentheses.
char state_in(const QByteArray& description)
{
    return description.mid(description.lastIndexOf(')') + 2, 1).append(' ').front();
}

/// True if every thread of a process is stopped.
bool is_stopped(pid_t process)
{
    const QDir threads(u"/proc/%1/task"_s.arg(process));
    for (const QString& thread : threads.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile file(threads.filePath(thread) + u"/stat");
        if (file.open(QIODevice::ReadOnly) && state_in(file.readAll()) != 'T')
            return false;
    }
    return true;
}

/// A process stops when it has handled the signal, which takes some time on a busy computer.
void wait_until_stopped(pid_t process)
{
    const QDeadlineTimer limit(std::chrono::seconds(30));
    while (!is_stopped(process)) {
        if (limit.hasExpired())
            qFatal("the server has not stopped");
        QThread::msleep(5);
    }
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
    if (number == SIGSTOP)
        wait_until_stopped(process_of_server());
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

QString file_of_tables()
{
    return folder() + u"/data/ibdata1";
}

}  // namespace verdane::testing
