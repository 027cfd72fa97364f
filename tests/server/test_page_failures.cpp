#include <QApplication>
#include <QTest>

#include <csignal>
#include <functional>
#include <vector>

#include "base/language.h"
#include "shell/start_up.h"
#include "tests/round/entered_shots.h"
#include "tests/server/failing_round.h"
#include "tests/server/own_server.h"
#include "tests/shell/program_run.h"
#include "tests/support/failure_boxes.h"
#include "tests/support/store_invariants.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// What a user has open when the server fails, and the next step, which then fails.
struct open_page {
    const char* name;
    std::function<void(hand&)> work;
    std::function<void(hand&)> next_step;
    /// What the work has committed, and its result.
    QString question;
    QString committed;
};

void enter_two_shots(hand& user)
{
    open_the_round(user);
    open_detailed_page(user);
    enter_shot(user, 0, 1, u"60"_s, 1);
    user.click(u"CommandSuiv"_s);
    enter_shot(user, 1, 9, u"10"_s, 2);
}

void enter_all_shots(hand& user)
{
    open_the_round(user);
    open_detailed_page(user);
    enter_hole(user);
}

void add_partner_in_window(hand& user)
{
    user.wait_for_window(u"MainForm"_s);
    user.menu(u"mpartners"_s);
    user.wait_for_window(in_language(u"f_partners", u"f_partners_en"));
    user.click(u"add"_s);
    user.type(u"Alder"_s);
    user.key(Qt::Key_Tab);
    user.type(u"Ann"_s);
    user.key(Qt::Key_Return);
    user.click(u"add"_s);
}

const std::vector<open_page>& pages()
{
    static const std::vector<open_page> all{
        {"a third shot is added", enter_two_shots, [](hand& user) { user.click(u"CommandSuiv"_s); },
         u"select group_concat(shot || ' ' || stick || ' ' || after || ' ' || shot_type_value) from "
         u"Stat_rounds "
         u"where shot < 2"_s,
         u"1 D 60 1"_s},
        {"a hole with shots is left", enter_all_shots, [](hand& user) { user.click_tab(hole_tabs, 2); },
         u"select group_concat(shot || ' ' || stick || ' ' || after, ', ') from (select * from Stat_rounds "
         u"where shot < 4 order by shot)"_s,
         u"1 D 60, 2 F9 30, 3 Pu 4"_s},
        {"a partner is added", add_partner_in_window, [](hand& user) { user.click(u"add"_s); },
         u"select group_concat(NAME || ' ' || SURNAME || ' ' || (code > 0)) from partners where NAME <> ''"_s,
         u"Alder Ann 1"_s},
    };
    return all;
}

struct harm {
    const char* name;
    std::function<void()> occur;
    std::function<void()> undo;
};

const std::vector<harm>& harms()
{
    static const auto start = [] { start_server(); };
    static const std::vector<harm> all{
        {"stopped", stop_server, start},
        {"killed", [] { signal_server(SIGKILL); }, start},
        {"frozen", [] { signal_server(SIGSTOP); }, [] { signal_server(SIGCONT); }},
    };
    return all;
}

/// The child process: works on the page, and takes the next step when the test has made the server fail.
int fail_on(const open_page& page)
{
    play([] { run_verdane(*qApp); },
         [&page](hand& user) {
             page.work(user);
             report_and_wait("worked");
             page.next_step(user);
             user.answer(failure_box(failure_kind::source_lost));
         });
    return not_reached;
}

QStringList clubs_and_round()
{
    QStringList statements = one_course() + one_round();
    for (int club = 1; club <= 14; ++club)
        statements << u"update sticknames set club_%1 = 'F%1'"_s.arg(club);
    return statements << u"update sticknames set club_1 = 'D', club_14 = 'Pu'"_s;
}

}  // namespace

/// The server fails while shots or partners are entered.
class test_page_failures : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_lost_server_is_reported_and_what_was_committed_is_still_stored_data()
    {
        QTest::addColumn<int>("page");
        QTest::addColumn<int>("harm");
        for (std::size_t p = 0; p < pages().size(); ++p) {
            for (std::size_t h = 0; h < harms().size(); ++h)
                QTest::addRow("%s, %s", pages()[p].name, harms()[h].name)
                    << static_cast<int>(p) << static_cast<int>(h);
        }
    }

    void a_lost_server_is_reported_and_what_was_committed_is_still_stored()
    {
        QFETCH(int, page);
        QFETCH(int, harm);
        const open_page& open = pages()[static_cast<std::size_t>(page)];
        const struct harm& what = harms()[static_cast<std::size_t>(harm)];
        const program_run run(page % 2 == 0 ? 1 : 2, clubs_and_round());
        QString before;
        const failed_child child = run_failing_child({u"--child"_s, QString::number(page)}, [&] {
            before = run.store().text(open.question);
            what.occur();
        });
        what.undo();
        QVERIFY2(child.ended, child.errors.constData());
        QVERIFY2(child.took_ms < longest_failure_ms, qPrintable(QString::number(child.took_ms)));
        QVERIFY2(!child.errors.contains("FAIL!"), child.errors.constData());
        QVERIFY(!child.crashed);
        QCOMPARE(child.status, 1);
        QCOMPARE(before, open.committed);
        QCOMPARE(run.store().text(open.question), open.committed);
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
        return fail_on(pages().at(arguments.value(2).toUInt()));
    test_page_failures test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_page_failures.moc"
