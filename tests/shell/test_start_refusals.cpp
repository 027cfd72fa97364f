#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTest>

#include <cstdio>
#include <unistd.h>

#include "base/failure_text.h"
#include "base/failure_words.h"
#include "base/language.h"
#include "base/run_time_failure.h"
#include "shell/start_up.h"
#include "tests/shell/main_windows.h"
#include "tests/shell/program_run.h"
#include "tests/support/languages.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using verdane::testing::both_languages;
using verdane::testing::hand;
using verdane::testing::play;
using verdane::testing::program_run;
using verdane::testing::quit;
using verdane::testing::rounds;

namespace {

/// The child process: starts on the data folder of its parent, prints the failure if there is one, and quits.
int start_and_leave()
{
    int status = -1;
    play([&] { status = run_verdane(*qApp); },
         [](hand& user) {
             user.wait_until(u"a window"_s, [&user] { return QApplication::activeWindow() != nullptr; });
             if (user.is_open(u"failure_box"_s)) {
                 std::printf("failure: %s\n", qUtf8Printable(user.text(u"qt_msgbox_label"_s)));
                 std::fflush(stdout);
                 user.key(Qt::Key_Return);
                 return;
             }
             quit(user);
         });
    return status;
}

struct ended {
    int status;
    QString output;
};

ended child_start(const char* way = "--start")
{
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(way)});
    child.waitForFinished(120000);
    return {child.exitStatus() == QProcess::NormalExit ? child.exitCode() : -1,
            QString::fromUtf8(child.readAllStandardOutput())};
}

/// What the child process prints about a failure after the language of the diary was read.
QString reported(failure_kind kind, bool french)
{
    return u"failure: %1\n"_s.arg(failure_words(kind).in(french));
}

constexpr QFile::Permissions owner_only = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;

/// Root has every permission.
bool give_up_rights()
{
    return geteuid() != 0 || (setgid(65534) == 0 && setuid(65534) == 0);
}

/// Makes the folder of the store readable for everyone and writable for no one.
void let_everyone_read_only(const QString& path)
{
    const QString folder = QFileInfo(path).path();
    const QFile::Permissions everyone = QFile::ReadOwner | QFile::ExeOwner | QFile::ReadGroup |
                                        QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;
    QFile::setPermissions(QFileInfo(folder).path(), everyone | QFile::WriteOwner);
    QFile::setPermissions(folder, everyone);
}

void damage(const QString& path)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.seek(100));
    QCOMPARE(file.write(QByteArray(3000, '\xee')), 3000);
}

QByteArray content(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

/// Starts of the program, most of which fail, each in a separate process.
class test_start_refusals : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_program_starts_with_a_diary_of_366_rounds()
    {
        program_run run(2, rounds(366));
        const ended child = child_start();
        QCOMPARE(child.status, 0);
    }

    void a_diary_of_367_rounds_is_reported_in_its_language_and_ends_the_program_data() { both_languages(); }
    void a_diary_of_367_rounds_is_reported_in_its_language_and_ends_the_program()
    {
        QFETCH(bool, french);
        const program_run run(french ? 1 : 2, rounds(367));
        const ended child = child_start();
        QCOMPARE(child.status, 1);
        QCOMPARE(child.output,
                 u"failure: %1\n"_s.arg(words_of_full_list(limited_list::stored_rounds).in(french)));
    }

    void a_second_program_on_the_same_diary_reports_the_lock_and_stops()
    {
        program_run run(2);
        run.play_through([](hand& user) {
            user.wait_for_window(u"MainForm"_s);
            const ended child = child_start();
            user.same(child.status, 1, u"exit status of the second program"_s);
            const text_pair words = failure_words(failure_kind::store_locked);
            user.check(child.output.contains(words.french) && child.output.contains(words.english),
                       child.output);
            quit(user);
        });
    }

    void a_store_that_cannot_be_used_is_reported_in_both_languages_and_not_changed_data()
    {
        QTest::addColumn<QString>("harm");
        QTest::addColumn<int>("kind");
        QTest::newRow("damaged file") << "damage" << static_cast<int>(failure_kind::store_damaged);
        QTest::newRow("settings without a row") << "no row" << static_cast<int>(failure_kind::misuse);
        QTest::newRow("read-only folder") << "no rights" << static_cast<int>(failure_kind::store_read_only);
    }

    void a_store_that_cannot_be_used_is_reported_in_both_languages_and_not_changed()
    {
        QFETCH(QString, harm);
        QFETCH(int, kind);
        program_run run(2);
        const QString path = program_run::store_path();
        if (harm == u"damage")
            damage(path);
        else if (harm == u"no row")
            run.store().write(u"delete from settings"_s);
        const bool no_rights = harm == u"no rights";
        if (no_rights)
            let_everyone_read_only(path);
        const QByteArray before = content(path);
        const ended child = child_start(no_rights ? "--start-without-rights" : "--start");
        if (no_rights)
            QFile::setPermissions(QFileInfo(path).path(), owner_only);
        QCOMPARE(child.status, 1);
        const text_pair words = failure_words(static_cast<failure_kind>(kind));
        QVERIFY2(child.output.contains(words.french) && child.output.contains(words.english),
                 qPrintable(child.output));
        QCOMPARE(content(path), before);
    }

    void a_missing_table_is_reported_in_the_language_of_the_diary_and_ends_the_program_data()
    {
        both_languages();
    }
    void a_missing_table_is_reported_in_the_language_of_the_diary_and_ends_the_program()
    {
        QFETCH(bool, french);
        const program_run run(french ? 1 : 2, {u"drop table sticknames"_s});
        const ended child = child_start();
        QCOMPARE(child.status, 1);
        QCOMPARE(child.output, reported(failure_kind::missing_table, french));
    }
};

int main(int argc, char** argv)
{
    const QByteArray way(argc == 2 ? argv[1] : "");
    if (way == "--start-without-rights") {
        if (!give_up_rights())
            return 2;
        // The folder of the registered sources is that of the parent process, which only its user may read.
        qputenv("ODBCINI", "/dev/null");
        qputenv("ODBCSYSINI", "/dev");
    }
    QApplication application(argc, argv);
    prepare_application(application);
    if (way.startsWith("--start"))
        return start_and_leave();
    test_start_refusals test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_start_refusals.moc"
