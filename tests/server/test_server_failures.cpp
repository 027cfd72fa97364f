#include <QApplication>
#include <QTest>

#include <csignal>
#include <functional>

#include "shell/start_up.h"
#include "tests/server/failing_round.h"
#include "tests/server/own_server.h"
#include "tests/server/rights_of_account.h"
#include "tests/shell/program_run.h"
#include "tests/support/engine_of_tests.h"
#include "tests/support/failure_boxes.h"
#include "tests/support/store_invariants.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// The child process: leaves one hole. When the test has made the server fail, it leaves another one, or
/// selects the detailed page, which adds a row, and expects the message box of the failure.
int fail_in_a_round(failure_kind kind)
{
    play([] { run_verdane(*qApp); },
         [kind](hand& user) {
             open_the_round(user);
             leave_hole(user, 1);
             report_and_wait("left");
             if (kind == failure_kind::source_full)
                 user.click_tab(u"TabStrip2"_s, 2);
             else
                 leave_hole(user, 2);
             user.answer(failure_box(kind));
         });
    return not_reached;
}

void rename_table(const QString& from, const QString& to)
{
    administer(u"alter table %1.%2 rename to %1.%3"_s.arg(file_of(program_run::store_place()), from, to));
}

/// What happens to the server while a round is open, and how that is undone.
struct harm {
    const char* name;
    failure_kind kind;
    std::function<void()> prepare;
    std::function<void()> occur;
    std::function<void()> undo;
};

const auto nothing = [] {};

void start_with_little_room()
{
    start_server(room_for_mb(48));
}

const std::vector<harm>& harms()
{
    static const std::vector<harm> all{
        {"stopped", failure_kind::source_lost, nothing, stop_server, start_with_little_room},
        {"killed", failure_kind::source_lost, nothing, [] { signal_server(SIGKILL); },
         start_with_little_room},
        {"restarted", failure_kind::source_lost, nothing,
         [] {
             stop_server();
             start_with_little_room();
         },
         nothing},
        {"frozen", failure_kind::source_lost, nothing, [] { signal_server(SIGSTOP); },
         [] { signal_server(SIGCONT); }},
        {"full", failure_kind::source_full, nothing,
         [] { fill_server(file_of(program_run::store_place()), u"Stat_rounds"_s); },
         [] {
             empty_server(file_of(program_run::store_place()), u"Stat_rounds"_s);
             start_with_little_room();
         }},
        {"without a table", failure_kind::source_part, nothing, [] { rename_table(u"games2"_s, u"away"_s); },
         [] { rename_table(u"away"_s, u"games2"_s); }},
        {"without the right to write", failure_kind::source_read_only, grant_rights_by_table,
         revoke_right_to_write, restore_rights},
    };
    return all;
}

}  // namespace

/// The server fails between two holes of a round.
class test_server_failures : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        stop_server();
        start_with_little_room();
    }

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
        const failed_child child =
            run_failing_child({u"--child"_s, QString::number(static_cast<int>(what.kind))}, what.occur);
        what.undo();
        QVERIFY2(child.ended, child.errors.constData());
        QVERIFY2(child.took_ms < longest_failure_ms, qPrintable(QString::number(child.took_ms)));
        QVERIFY2(!child.errors.contains("FAIL!"), child.errors.constData());
        QVERIFY(!child.crashed);
        QCOMPARE(child.status, 1);
        QCOMPARE(stored_figures(run.store(), 1), figures_of(1));
        QCOMPARE(stored_figures(run.store(), 2), QString(11, u'0'));
        QCOMPARE(run.store().number(u"select count(*) from Stat_rounds"_s), 0);
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
