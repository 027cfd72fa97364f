#include <QApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTest>

#include <csignal>
#include <cstdio>
#include <functional>

#include "base/language.h"
#include "shell/start_up.h"
#include "tests/server/own_server.h"
#include "tests/shell/program_run.h"
#include "tests/support/engine_of_tests.h"
#include "tests/support/failure_boxes.h"
#include "tests/support/store_invariants.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

constexpr int not_reached = 77;
/// Longer than any time-out of the program.
constexpr int longest_ms = 60000;

const QString hole_tabs = u"TabStrip1"_s;
const QString figures_of_first_hole = u"12345678123"_s;
const QString figures_of_second_hole = u"22222222222"_s;

/// Prints a line and waits until the test answers with one.
void report_and_wait(const char* word)
{
    std::printf("%s\n", word);
    std::fflush(stdout);
    while (std::getchar() != '\n') {
    }
}

void open_the_round(hand& user)
{
    user.wait_for_window(u"MainForm"_s);
    user.menu(u"mnOPenr"_s);
    user.wait_for_window(in_language(u"f_games", u"f_games_en"));
    user.double_click_row(u"List1"_s, 0);
    user.wait_for_window(in_language(u"f_new_round", u"f_new_round_en"));
}

/// The child process: leaves one hole; after the test has harmed the server, it leaves another one and
/// expects the message box of the failure.
int fail_in_a_round(failure_kind kind)
{
    play([] { run_verdane(*qApp); },
         [kind](hand& user) {
             open_the_round(user);
             user.type(figures_of_first_hole);
             user.click_tab(hole_tabs, 2);
             report_and_wait("left");
             user.type(figures_of_second_hole);
             user.click_tab(hole_tabs, 3);
             user.answer(
                 {failure_words(kind).in(is_french), QMessageBox::Critical, u"Verdane"_s, QMessageBox::Ok});
         });
    return not_reached;
}

/// The eleven figures of a hole in the order of the quick page.
QString stored_figures(const reader& store, int hole)
{
    QStringList columns;
    for (const QString& name :
         {u"long_"_s, u"approach_"_s, u"putt_"_s, u"fairway_"_s, u"sand_"_s, u"missed_"_s, u"recovery_"_s,
          u"pen_water_"_s, u"pen_lost_"_s, u"pen_rule_"_s, u"pen_bounds_"_s})
        columns << u"coalesce(%1%2, 0)"_s.arg(name).arg(hole);
    return store.text(u"select " + columns.join(u" || ") + u" from games join games2 using (date)");
}

/// Of the tables, because a change to the rights on a database has no effect on open connections.
void grant_on_tables(const QString& rights, const QString& verb)
{
    const reader store(program_run::store_place());
    const QString database = file_of(program_run::store_place());
    for (const auto& row : store.rows(u"select name from sqlite_master"_s))
        administer(verb.arg(rights, database, row[0].toString()));
}

void restrict_account()
{
    administer(u"revoke all on `verdbase%`.* from golfer@localhost"_s);
    grant_on_tables(u"select, insert, update, delete"_s, u"grant %1 on %2.%3 to golfer@localhost"_s);
}

void restore_account()
{
    administer(u"grant all on `verdbase%`.* to golfer@localhost"_s);
}

/// What happens to the server while a round is open, and how it is undone.
struct harm {
    const char* name;
    failure_kind kind;
    std::function<void()> prepare;
    std::function<void()> occur;
    std::function<void()> undo;
};

const auto nothing = [] {};

const std::vector<harm>& harms()
{
    static const std::vector<harm> all{
        {"stopped", failure_kind::source_lost, nothing, [] { stop_server(); }, [] { start_server(); }},
        {"killed", failure_kind::source_lost, nothing, [] { signal_server(SIGKILL); },
         [] { start_server(); }},
        {"frozen", failure_kind::source_lost, nothing, [] { signal_server(SIGSTOP); },
         [] { signal_server(SIGCONT); }},
        {"full", failure_kind::source_full,
         [] {
             stop_server();
             start_server(room_for_mb(64));
         },
         [] { fill_server(); },
         [] {
             stop_server();
             start_server();
         }},
        {"without the right to write", failure_kind::source_read_only, [] { restrict_account(); },
         [] { grant_on_tables(u"insert, update, delete"_s, u"revoke %1 on %2.%3 from golfer@localhost"_s); },
         [] { restore_account(); }},
    };
    return all;
}

}  // namespace

/// The server fails between two holes of a round.
class test_server_failures : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_failure_is_reported_in_bounded_time_and_what_was_committed_is_still_stored_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<bool>("french");
        for (std::size_t i = 0; i < harms().size(); ++i) {
            for (const bool french : {true, false})
                QTest::addRow("%s, %s", harms()[i].name, french ? "French" : "English")
                    << static_cast<int>(i) << french;
        }
    }

    void a_failure_is_reported_in_bounded_time_and_what_was_committed_is_still_stored()
    {
        QFETCH(int, index);
        QFETCH(bool, french);
        const harm& what = harms()[static_cast<std::size_t>(index)];
        const program_run run(french ? 1 : 2, one_course() + one_round());
        what.prepare();
        QProcess child;
        child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        child.start(QCoreApplication::applicationFilePath(),
                    {u"--child"_s, QString::number(static_cast<int>(what.kind))});
        while (!child.canReadLine())
            QVERIFY(child.waitForReadyRead(60000));
        what.occur();
        QElapsedTimer time;
        time.start();
        child.write("\n");
        const bool ended = child.waitForFinished(2 * longest_ms);
        const qint64 took = time.elapsed();
        if (!ended)
            child.kill();
        what.undo();
        QVERIFY(ended);
        QVERIFY2(took < longest_ms, qPrintable(QString::number(took)));
        QCOMPARE(child.exitStatus(), QProcess::NormalExit);
        QCOMPARE(child.exitCode(), 1);
        QCOMPARE(stored_figures(run.store(), 1), figures_of_first_hole);
        QCOMPARE(stored_figures(run.store(), 2), QString(11, u'0'));
        QCOMPARE(broken_invariants(run.store()), QStringList());
        QCOMPARE(run.store().damage(), QString());
    }
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    prepare_application(application);
    const QStringList arguments = application.arguments();
    if (arguments.value(1) == u"--child")
        return fail_in_a_round(static_cast<failure_kind>(arguments.value(2).toInt()));
    test_server_failures test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_server_failures.moc"
