#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QTest>

#include <cstdio>
#include <cstdlib>
#include <map>
#include <sys/resource.h>

#include "base/failure_words.h"
#include "base/language.h"
#include "base/run_time_failure.h"
#include "shell/start_up.h"
#include "store/DataEnvironment1.h"
#include "tests/shell/main_windows.h"
#include "tests/shell/program_run.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

constexpr int not_limited = 2;
constexpr int holes_of_a_round = 18;

/// Limits the size of files, as `ulimit -f` does. Only the soft limit is set, so that the process can raise
/// it again.
bool limit_files(rlim_t bytes)
{
    rlimit limit{};
    if (getrlimit(RLIMIT_FSIZE, &limit) != 0)
        return false;
    limit.rlim_cur = bytes;
    return setrlimit(RLIMIT_FSIZE, &limit) == 0;
}

void print_and_close_failure(hand& user)
{
    user.wait_for_window(u"failure_box"_s);
    std::printf("failure: %s\n", qUtf8Printable(user.text(u"qt_msgbox_label"_s)));
    std::fflush(stdout);
    user.key(Qt::Key_Return);
}

int start_and_fail()
{
    int status = -1;
    play([&] { status = run_verdane(*qApp); }, print_and_close_failure);
    return status;
}

/// Types holes, with another digit in each pass over them, until the log of the store reaches the limit.
/// Prints the digit after each hole.
void type_holes(hand& user)
{
    for (int count = 0;; ++count) {
        const int hole = count % holes_of_a_round + 1;
        const int digit = count / holes_of_a_round % 9 + 1;
        user.type(QString(11, QChar(u'0' + digit)));
        user.click_tab(u"TabStrip1"_s, hole % holes_of_a_round + 1);
        if (user.is_open(u"failure_box"_s))
            return;
        std::printf("left: %d %d\n", hole, digit);
        std::fflush(stdout);
    }
}

int fail_in_a_round()
{
    int status = -1;
    play([&] { status = run_verdane(*qApp); },
         [](hand& user) {
             user.wait_for_window(u"MainForm"_s);
             user.menu(u"mnOPenr"_s);
             user.wait_for_window(u"f_games_en"_s);
             user.double_click_row(u"List1"_s, 0);
             user.wait_for_window(u"f_new_round_en"_s);
             user.look([] {
                 const QFileInfo log(program_run::store_path() + u"-wal");
                 constexpr int room = 150 * 1024;
                 if (!limit_files(static_cast<rlim_t>(log.size() + room)))
                     std::_Exit(not_limited);
             });
             type_holes(user);
             print_and_close_failure(user);
         });
    return status;
}

/// The digit that each hole was left with, by its number.
std::map<int, int> digits_left(const QString& output)
{
    std::map<int, int> digits;
    for (const QString& line : output.split(u'\n')) {
        const QStringList words = line.split(u' ');
        if (words.size() == 3 && words[0] == u"left:")
            digits[words[1].toInt()] = words[2].toInt();
    }
    return digits;
}

struct ended {
    bool crashed;
    int status;
    QString output;
};

ended child(const QString& way, const QString& argument = {})
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {way, argument});
    process.waitForFinished(120000);
    return {process.exitStatus() == QProcess::CrashExit, process.exitCode(),
            QString::fromUtf8(process.readAllStandardOutput())};
}

}  // namespace

/// A write beyond the limit on file sizes does not kill the process and is reported as a full disk.
class test_full_disk : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_first_start_on_a_full_disk_reports_it_and_leaves_no_file_data()
    {
        QTest::addColumn<int>("bytes");
        for (const int bytes : {0, 1, 2000, 4096, 20000, 100000})
            QTest::addRow("%d bytes", bytes) << bytes;
    }

    void a_first_start_on_a_full_disk_reports_it_and_leaves_no_file()
    {
        QFETCH(int, bytes);
        const program_run run(2);
        const QString path = program_run::store_path();
        QVERIFY(QFile::remove(path));
        const ended start = child(u"--start"_s, QString::number(bytes));
        QVERIFY2(!start.crashed, qPrintable(start.output));
        QCOMPARE(start.status, 1);
        const text_pair words = failure_words(failure_kind::store_full);
        QVERIFY2(start.output.contains(words.french) && start.output.contains(words.english),
                 qPrintable(start.output));
        const QDir folder = QFileInfo(path).absoluteDir();
        QCOMPARE(folder.entryList(QDir::Files | QDir::Hidden), QStringList());
        Connection1 connection;
        connection.Open(path);
        QCOMPARE(reader(path).number(u"select count(*) from settings"_s), 1);
    }

    void every_hole_that_was_left_before_the_disk_was_full_is_stored()
    {
        const program_run run(2, one_course() + one_round());
        const ended round = child(u"--round"_s);
        QVERIFY2(!round.crashed, qPrintable(round.output));
        QCOMPARE(round.status, 1);
        QVERIFY2(round.output.contains(failure_words(failure_kind::store_full).english),
                 qPrintable(round.output));
        const std::map<int, int> digits = digits_left(round.output);
        QVERIFY2(!digits.empty(), qPrintable(round.output));
        for (const auto& [hole, digit] : digits)
            QCOMPARE(run.store().text(u"select long_%1 || ' ' || fairway_%1 from games join "
                                      u"games2 using (date)"_s.arg(hole)),
                     u"%1 %1"_s.arg(digit));
        QCOMPARE(run.store().text(u"pragma integrity_check"_s), u"ok"_s);
    }
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    prepare_application(application);
    const QStringList arguments = application.arguments();
    if (arguments.value(1) == u"--start")
        return limit_files(arguments.value(2).toULong()) ? start_and_fail() : not_limited;
    if (arguments.value(1) == u"--round")
        return fail_in_a_round();
    test_full_disk test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_full_disk.moc"
