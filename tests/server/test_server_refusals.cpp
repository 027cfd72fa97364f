#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QMap>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <csignal>
#include <cstdio>
#include <functional>
#include <memory>
#include <vector>

#include "base/failure_words.h"
#include "base/language.h"
#include "base/program.h"
#include "controls/failure_guard.h"
#include "shell/start_up.h"
#include "store/Connection1.h"
#include "store/DataEnvironment1.h"
#include "store/engines/odbc_link.h"
#include "store/engines/registered_source.h"
#include "store/schema.h"
#include "tests/server/own_server.h"
#include "tests/shell/main_windows.h"
#include "tests/shell/program_run.h"
#include "tests/support/engine_of_tests.h"
#include "tests/support/failures.h"
#include "tests/support/outside_connection.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// The longest time until the program, under the sanitizers on a busy computer, reports that a server does
/// not respond. Opening alone is limited by `longest_opening_ms`.
constexpr int longest_ms = 12000;

constexpr int opening_time_out_ms = 1000 * source_opening_time_out_s;
constexpr int longest_opening_ms = 2 * opening_time_out_ms;

const QString program_source = u"Verdbase"_s;

using source_settings = QMap<QString, QString>;

/// The settings of the source that works.
source_settings good_settings()
{
    source_settings settings;
    for (const QString& key : {u"Driver"_s, u"SOCKET"_s, u"DATABASE"_s, u"UID"_s, u"PWD"_s})
        settings[key] = setting_of_source(program_source, key);
    return settings;
}

/// Prints the failure that is shown, and closes its box.
void print_failure(hand& user)
{
    std::printf("failure: %s\ndetails: %s\n", qUtf8Printable(user.text(u"qt_msgbox_label"_s)),
                qUtf8Printable(user.text(u"qt_msgbox_informativelabel"_s)));
    std::fflush(stdout);
    user.key(Qt::Key_Return);
}

/// The child process: starts the program, prints the failure if there is one, and quits.
int start_and_leave()
{
    int status = -1;
    play([&] { status = run_verdane(*qApp); },
         [](hand& user) {
             user.wait_until(u"a window"_s, [] { return QApplication::activeWindow() != nullptr; });
             if (user.is_open(u"failure_box"_s))
                 print_failure(user);
             else
                 quit(user);
         });
    return status;
}

/// The child process: opens a source that is not registered, as the program opens its store, and prints the
/// failure. The exit status is not used, because the program ends after the failure.
int open_unknown_source()
{
    reset_interface_language();
    play([] { run_event([] { data_environment().connection.Open(store_location::source(u"nowhere"_s)); }); },
         [](hand& user) {
             user.wait_for_window(u"failure_box"_s);
             print_failure(user);
         });
    return -1;
}

/// The child process: prints how long opening the store takes until it fails, in milliseconds.
int time_refusal()
{
    QElapsedTimer time;
    time.start();
    Connection1 connection;
    const auto kind = failure_of([&] { connection.Open(); });
    std::printf("%lld", static_cast<long long>(time.elapsed()));
    return kind == failure_kind::source_silent ? 0 : 1;
}

/// The child process: keeps the store open until it is killed.
int hold_store()
{
    Connection1 connection;
    connection.Open();
    std::printf("open\n");
    std::fflush(stdout);
    return std::getchar();
}

struct ended {
    int status;
    QString said;
    /// What it has written to its error output.
    QString log;
};

/// Starts this program again, by default as Verdane, with the sources that this file registers.
ended child_start_with(const QString& registration, const QString& task = u"--start"_s)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"ODBCINI"_s, registration);
    QProcess child;
    child.setProcessEnvironment(environment);
    child.start(QCoreApplication::applicationFilePath(), {task});
    if (!child.waitForFinished(120000))
        child.kill();
    return {child.exitStatus() == QProcess::NormalExit ? child.exitCode() : -1,
            QString::fromUtf8(child.readAllStandardOutput()),
            QString::fromUtf8(child.readAllStandardError())};
}

/// The same, with those settings of its source.
ended child_start(const source_settings& settings, const QString& task = u"--start"_s)
{
    QTemporaryDir folder;
    QFile file(folder.filePath(u"odbc.ini"_s));
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write %s", qUtf8Printable(file.fileName()));
    file.write("[Verdbase]\n");
    for (auto setting = settings.begin(); setting != settings.end(); ++setting)
        file.write(QString(setting.key() + u'=' + setting.value() + u'\n').toUtf8());
    file.close();
    return child_start_with(file.fileName(), task);
}

const auto nothing = [] {};

void restart_server(const QStringList& options = {})
{
    stop_server();
    start_server(options);
}

void alter(const QString& change)
{
    administer(u"alter table %1.%2"_s.arg(file_of(program_run::store_place()), change));
}

/// A file that the ODBC driver of another engine opens: the first page of an empty database.
QString file_of_other_engine()
{
    static const QTemporaryDir folder;
    const QString path = folder.filePath(u"other.mdb"_s);
    QByteArray page("\0\1\0\0Standard Jet DB\0\1", 21);
    page.append(4096 - page.size(), '\0');
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(page) != page.size())
        qFatal("cannot write %s", qUtf8Printable(path));
    return path;
}

QString driver_of_other_engine()
{
    const QString driver = setting_of_source(program_source, u"Driver"_s);
    return QFileInfo(driver).dir().filePath(u"libmdbodbcW.so"_s);
}

/// Makes the account `viewer`, which has those rights on the databases of the tests.
void add_account(const QString& rights)
{
    administer(u"create or replace user viewer@localhost identified by 'fairway'"_s);
    administer(u"grant %1 on `verdbase%`.* to viewer@localhost"_s.arg(rights));
}

/// Makes that account with rights on every table but one, which the server does not describe to it then.
void add_account_without(const QString& hidden)
{
    add_account(u"create"_s);
    const QString database = file_of(program_run::store_place());
    for (const table& each : schema()) {
        if (each.name != hidden)
            administer(u"grant all on %1.%2 to viewer@localhost"_s.arg(database, each.name));
    }
    administer(u"revoke create on `verdbase%`.* from viewer@localhost"_s);
}

/// Connections of the golfer's account that are open until `close_connections`.
std::vector<std::unique_ptr<outside_connection>> held_connections;

void hold_connections(int number)
{
    for (int i = 0; i < number; ++i)
        held_connections.push_back(std::make_unique<outside_connection>(program_run::store_place()));
}

/// The connections in the list of the server. A closed connection remains in it for a moment.
int number_of_connections(const outside_connection& server)
{
    QSqlQuery query = server.run_unchanged(
        u"select count(*) from information_schema.processlist where user != 'system user'"_s);
    return all_rows(query)[0][0].toInt();
}

/// Lets the server accept as few connections as possible, and uses all of them.
void use_all_connections()
{
    constexpr int least = 10;
    administer(u"set global max_connections = %1"_s.arg(least));
    held_connections.push_back(
        std::make_unique<outside_connection>(store_location::source(administrator_source())));
    while (number_of_connections(*held_connections.front()) > 1)
        QThread::msleep(10);
    hold_connections(least - 1);
}

/// Why the source cannot be used, and how that is undone.
struct refusal {
    const char* name;
    failure_kind kind;
    source_settings changed;
    std::function<void()> prepare;
    std::function<void()> undo;
};

const std::vector<refusal>& refusals()
{
    static const std::vector<refusal> all{
        {"no driver",
         failure_kind::source_driver,
         {{u"Driver"_s, u"/nowhere/libnone.so"_s}},
         nothing,
         nothing},
        {"driver not installed", failure_kind::source_driver, {{u"Driver"_s, u"None"_s}}, nothing, nothing},
        {"another engine",
         failure_kind::source_engine,
         {{u"Driver"_s, driver_of_other_engine()}, {u"DATABASE"_s, file_of_other_engine()}},
         nothing,
         nothing},
        {"wrong password", failure_kind::source_password, {{u"PWD"_s, u"bunker"_s}}, nothing, nothing},
        {"unknown account", failure_kind::source_password, {{u"UID"_s, u"caddie"_s}}, nothing, nothing},
        {"password that has to be changed first",
         failure_kind::source_password,
         {{u"UID"_s, u"viewer"_s}},
         [] {
             add_account(u"all"_s);
             administer(u"alter user viewer@localhost password expire"_s);
         },
         nothing},
        {"database of others",
         failure_kind::source_database,
         {{u"DATABASE"_s, u"mysql"_s}},
         nothing,
         nothing},
        {"no database", failure_kind::source_database, {{u"DATABASE"_s, u""_s}}, nothing, nothing},
        {"server stopped", failure_kind::source_stopped, {}, [] { stop_server(); }, [] { start_server(); }},
        {"server frozen",
         failure_kind::source_silent,
         {},
         [] { signal_server(SIGSTOP); },
         [] { signal_server(SIGCONT); }},
        {"no connection free on the server",
         failure_kind::source_busy,
         {},
         use_all_connections,
         [] {
             held_connections.clear();
             administer(u"set global max_connections = 151"_s);
         }},
        {"no connection free for the account",
         failure_kind::source_busy,
         {},
         [] {
             administer(u"alter user golfer@localhost with max_user_connections 1"_s);
             hold_connections(1);
         },
         [] {
             held_connections.clear();
             administer(u"alter user golfer@localhost with max_user_connections 0"_s);
         }},
        {"encryption that the server does not have",
         failure_kind::source_login,
         {{u"SSLVERIFY"_s, u"1"_s}},
         nothing,
         nothing},
        {"account that only reads",
         failure_kind::source_read_only,
         {{u"UID"_s, u"viewer"_s}},
         [] { add_account(u"select"_s); },
         nothing},
        {"account that may not insert",
         failure_kind::source_read_only,
         {{u"UID"_s, u"viewer"_s}},
         [] { add_account(u"select, update, delete"_s); },
         nothing},
        {"account that may not delete",
         failure_kind::source_read_only,
         {{u"UID"_s, u"viewer"_s}},
         [] { add_account(u"select, insert, update"_s); },
         nothing},
        {"account that may write all tables but one",
         failure_kind::source_read_only,
         {{u"UID"_s, u"viewer"_s}},
         [] {
             add_account(u"create"_s);
             for (const table& each : schema())
                 administer(u"grant %1 on %2.%3 to viewer@localhost"_s.arg(
                     each.name == u"cost"_s ? u"select"_s : u"select, insert, update, delete"_s,
                     file_of(program_run::store_place()), each.name));
         },
         nothing},
        {"account without rights on one table",
         failure_kind::source_read_only,
         {{u"UID"_s, u"viewer"_s}},
         [] { add_account_without(u"cost"_s); },
         nothing},
        {"account without rights on any table",
         failure_kind::source_read_only,
         {{u"UID"_s, u"viewer"_s}},
         [] { add_account(u"create"_s); },
         nothing},
        {"server that only reads",
         failure_kind::source_read_only,
         {},
         [] { administer(u"set global read_only = 1"_s); },
         [] { administer(u"set global read_only = 0"_s); }},
        {"case of table names",
         failure_kind::source_case,
         {},
         [] { restart_server({u"--lower-case-table-names=0"_s}); },
         [] { restart_server(); }},
        {"missing table",
         failure_kind::source_table,
         {},
         [] { alter(u"partners rename to %1.elsewhere"_s.arg(file_of(program_run::store_place()))); },
         nothing},
        {"missing column",
         failure_kind::source_column,
         {},
         [] { alter(u"games drop column missed_18"_s); },
         nothing},
        {"renamed column",
         failure_kind::source_column,
         {},
         [] { alter(u"games rename column field to course"_s); },
         nothing},
        {"moved column",
         failure_kind::source_column,
         {},
         [] { alter(u"games modify column CODEF text after missed_18"_s); },
         nothing},
        {"column of texts instead of numbers",
         failure_kind::source_type,
         {},
         [] { alter(u"games modify column missed_18 text"_s); },
         nothing},
        {"column of whole numbers instead of real ones",
         failure_kind::source_type,
         {},
         [] { alter(u"hand modify column hnd int"_s); },
         nothing},
        {"column of dates instead of texts",
         failure_kind::source_type,
         {},
         [] { alter(u"cost modify column date datetime"_s); },
         nothing},
        {"key that is too short",
         failure_kind::source_type,
         {},
         [] { alter(u"stat_rounds modify column date varchar(13)"_s); },
         nothing},
        {"column that the server computes",
         failure_kind::source_type,
         {},
         [] { alter(u"partners drop column code, add column code int as (7) after MAIL"_s); },
         nothing},
        {"joined keys with different collations",
         failure_kind::source_type,
         {},
         [] { alter(u"cost modify column date varchar(14) collate utf8mb4_bin"_s); },
         nothing},
        {"view instead of a table",
         failure_kind::source_storage,
         {},
         [] {
             const QString database = file_of(program_run::store_place());
             alter(u"partners rename to %1.members"_s.arg(database));
             administer(u"create view %1.partners as select * from %1.members"_s.arg(database));
         },
         nothing},
        {"table without transactions",
         failure_kind::source_storage,
         {},
         [] { alter(u"games2 engine = MyISAM"_s); },
         nothing},
    };
    return all;
}

}  // namespace

/// Starts of the program on a registered source that it cannot use, each in a separate process.
class test_server_refusals : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_source_that_cannot_be_used_is_reported_in_both_languages_data()
    {
        QTest::addColumn<int>("index");
        for (std::size_t i = 0; i < refusals().size(); ++i)
            QTest::newRow(refusals()[i].name) << static_cast<int>(i);
    }

    void a_source_that_cannot_be_used_is_reported_in_both_languages()
    {
        QFETCH(int, index);
        const refusal& what = refusals()[static_cast<std::size_t>(index)];
        const program_run run(2, one_course() + one_round());
        source_settings settings = good_settings();
        for (auto setting = what.changed.begin(); setting != what.changed.end(); ++setting)
            settings[setting.key()] = setting.value();
        what.prepare();
        QElapsedTimer time;
        time.start();
        const ended child = child_start(settings);
        const qint64 took = time.elapsed();
        what.undo();
        const text_pair words = failure_words(what.kind);
        QVERIFY2(child.said.contains(words.french) && child.said.contains(words.english),
                 qPrintable(child.said));
        QCOMPARE(child.status, 1);
        QVERIFY2(child.said.contains(u"\ndetails: ") && !child.said.endsWith(u"details: \n"),
                 qPrintable(child.said));
        const QString password = settings[u"PWD"_s];
        QVERIFY2(!child.said.contains(password) && !child.log.contains(password), qPrintable(child.log));
        QVERIFY2(took < longest_ms, qPrintable(QString::number(took)));
        QCOMPARE(run.store().number(u"select count(*) from games"_s), 1);
        QVERIFY(!QFile::exists(Connection1::default_path()));
    }

    void opening_a_source_on_a_server_that_does_not_respond_ends_after_its_time_out()
    {
        const program_run run(2);
        signal_server(SIGSTOP);
        const ended child = child_start(good_settings(), u"--time"_s);
        signal_server(SIGCONT);
        QCOMPARE(child.status, 0);
        const int took = child.said.toInt();
        QVERIFY2(took > opening_time_out_ms / 2 && took < longest_opening_ms, qPrintable(child.said));
    }

    void a_usable_source_is_opened()
    {
        const program_run run(2);
        const ended child = child_start(good_settings());
        QCOMPARE(child.said, QString());
        QCOMPARE(child.status, 0);
        QVERIFY(!QFile::exists(Connection1::default_path()));
    }

    void a_source_that_another_program_uses_is_refused_until_that_is_killed()
    {
        const program_run run(2);
        QProcess other;
        other.start(QCoreApplication::applicationFilePath(), {u"--hold"_s});
        while (!other.canReadLine())
            QVERIFY(other.waitForReadyRead(60000));
        const ended refused = child_start(good_settings());
        const text_pair words = failure_words(failure_kind::store_locked);
        QVERIFY2(refused.said.contains(words.french) && refused.said.contains(words.english),
                 qPrintable(refused.said));
        QCOMPARE(refused.status, 1);
        other.kill();
        QVERIFY(other.waitForFinished());
        QCOMPARE(child_start(good_settings()).status, 0);
    }

    void a_registration_that_cannot_be_read_is_reported_in_both_languages()
    {
        const program_run run(2);
        const QTemporaryDir folder;
        const ended child = child_start_with(folder.path());
        const text_pair words = failure_words(failure_kind::source_driver);
        QVERIFY2(child.said.contains(words.french) && child.said.contains(words.english),
                 qPrintable(child.said));
        QVERIFY2(child.said.contains(u"details: "_s + folder.path() + u": "), qPrintable(child.said));
        QCOMPARE(child.status, 1);
        QVERIFY(!QFile::exists(Connection1::default_path()));
    }

    void a_source_that_is_not_registered_is_reported_in_both_languages()
    {
        Connection1 connection;
        QVERIFY(failure_of([&] { connection.Open(store_location::source(u"nowhere"_s)); }) ==
                failure_kind::source_unknown);
        QVERIFY(!connection.is_open());
        const ended child = child_start(good_settings(), u"--unknown"_s);
        QVERIFY2(child.said.contains(u"n'est pas enregistrée sur cet ordinateur") &&
                     child.said.contains(u"is not registered on this computer"),
                 qPrintable(child.said));
        QVERIFY2(child.said.endsWith(u"details: nowhere\n"), qPrintable(child.said));
        QCOMPARE(child.status, 1);
    }
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    prepare_application(application);
    const QString way = application.arguments().value(1);
    if (way == u"--start")
        return start_and_leave();
    if (way == u"--unknown")
        return open_unknown_source();
    if (way == u"--time")
        return time_refusal();
    if (way == u"--hold")
        return hold_store();
    test_server_refusals test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_server_refusals.moc"
