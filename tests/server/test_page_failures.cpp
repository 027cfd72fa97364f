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
#include "tests/server/rights_of_account.h"
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
    /// The names of what happens to the server meanwhile.
    QStringList harms;
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

void type_costs(hand& user)
{
    open_the_round(user);
    leave_hole(user, 1);
    user.click(u"Command2"_s);
    user.wait_for_window(in_language(u"f_cost", u"f_cost_en"));
    user.fill(u"cost_0"_s, u"100"_s);
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
    static const QStringList losses{u"stopped"_s, u"killed"_s, u"frozen"_s};
    static const QStringList no_right{u"without the right to write"_s};
    static const std::vector<open_page> all{
        {"a third shot is added", enter_two_shots, [](hand& user) { user.click(u"CommandSuiv"_s); },
         u"select group_concat(shot || ' ' || stick || ' ' || after || ' ' || shot_type_value) from "
         u"Stat_rounds "
         u"where shot < 2"_s,
         u"1 D 60 1"_s, losses + no_right},
        {"a hole with shots is left", enter_all_shots, [](hand& user) { user.click_tab(hole_tabs, 2); },
         u"select group_concat(shot || ' ' || stick || ' ' || after, ', ') from (select * from Stat_rounds "
         u"where shot < 4 order by shot)"_s,
         u"1 D 60, 2 F9 30, 3 Pu 4"_s, losses + no_right},
        {"a partner is added", add_partner_in_window, [](hand& user) { user.click(u"add"_s); },
         u"select group_concat(NAME || ' ' || SURNAME || ' ' || (code > 0)) from partners where NAME <> ''"_s,
         u"Alder Ann 1"_s, losses},
        {"costs are accepted", type_costs, [](hand& user) { user.click(u"OKButton"_s); },
         u"select long_1 || ' ' || coalesce(fg, 0) from games join cost using (date)"_s, u"2 0"_s,
         QStringList{u"stopped"_s} + no_right},
    };
    return all;
}

/// What happens to the server, and how that is undone.
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
    static const auto start = [] { start_server(); };
    static const std::vector<harm> all{
        {"stopped", failure_kind::source_lost, nothing, stop_server, start},
        {"killed", failure_kind::source_lost, nothing, [] { signal_server(SIGKILL); }, start},
        {"frozen", failure_kind::source_lost, nothing, [] { signal_server(SIGSTOP); },
         [] { signal_server(SIGCONT); }},
        {"without the right to write", failure_kind::source_read_only, grant_rights_by_table,
         revoke_right_to_write, restore_rights},
    };
    return all;
}

/// The child process: works on the page, and takes the next step when the test has made the server fail.
int fail_on(const open_page& page, failure_kind kind)
{
    play([] { run_verdane(*qApp); },
         [&page, kind](hand& user) {
             page.work(user);
             report_and_wait("worked");
             page.next_step(user);
             user.answer(failure_box(kind));
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

/// The server fails while shots, costs or partners are entered.
class test_page_failures : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_failing_server_is_reported_and_what_was_committed_is_still_stored_data()
    {
        QTest::addColumn<int>("page");
        QTest::addColumn<int>("harm");
        for (std::size_t p = 0; p < pages().size(); ++p) {
            for (std::size_t h = 0; h < harms().size(); ++h) {
                if (pages()[p].harms.contains(QLatin1String(harms()[h].name)))
                    QTest::addRow("%s, %s", pages()[p].name, harms()[h].name)
                        << static_cast<int>(p) << static_cast<int>(h);
            }
        }
    }

    void a_failing_server_is_reported_and_what_was_committed_is_still_stored()
    {
        QFETCH(int, page);
        QFETCH(int, harm);
        const open_page& open = pages()[static_cast<std::size_t>(page)];
        const struct harm& what = harms()[static_cast<std::size_t>(harm)];
        const program_run run(page % 2 == 0 ? 1 : 2, clubs_and_round());
        what.prepare();
        QString before;
        const QStringList task{u"--child"_s, QString::number(page),
                               QString::number(static_cast<int>(what.kind))};
        const failed_child child = run_failing_child(task, [&] {
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
        return fail_on(pages().at(arguments.value(2).toUInt()),
                       static_cast<failure_kind>(arguments.value(3).toInt()));
    test_page_failures test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_page_failures.moc"
