#include <QApplication>
#include <QTest>

#include "records/Main_module.h"
#include "shell/start_up.h"
#include "tests/management/removal_windows.h"
#include "tests/round/round_windows.h"
#include "tests/shell/program_run.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

void start_at_the_moment_of_the_removed_round(hand& user)
{
    user.wait_for_window(u"MainForm"_s);
    user.menu(u"mOpen"_s);
    fill_tee_off(user, u"9"_s, u"30"_s, u"00"_s);
}

void quit(hand& user)
{
    user.wait_until_closed(round_window());
    user.menu(u"mQuit"_s);
}

}  // namespace

class test_removed_key : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { prepare_application(*qApp); }

    void the_key_is_refused_for_the_rest_of_the_run_and_accepted_after_a_restart_data()
    {
        QTest::addColumn<int>("language");
        QTest::newRow("French") << 1;
        QTest::newRow("English") << 2;
    }
    void the_key_is_refused_for_the_rest_of_the_run_and_accepted_after_a_restart()
    {
        QFETCH(int, language);
        program_run run(language, one_course() + one_round(key_of_keyed_round()));
        run.play_through([](hand& user) {
            user.wait_for_window(u"MainForm"_s);
            user.menu(u"mnOPenr"_s);
            user.wait_for_window(list_window());
            remove_round_in_list(user);
            leave_list(user);
            user.wait_until_closed(list_window());
            start_at_the_moment_of_the_removed_round(user);
            user.answer(refusal_of_moment());
            user.key(Qt::Key_Escape);
            quit(user);
        });
        QCOMPARE(run.store().number(u"select count(*) from games"_s), 0);
        // The next start is a new process with an empty list.
        Main_module::round_keys.clear();
        run.play_through([](hand& user) {
            start_at_the_moment_of_the_removed_round(user);
            user.answer(question_on_tee_off(), QMessageBox::Yes);
            user.wait_for_window(round_window());
            accept(user);
            quit(user);
        });
        QCOMPARE(run.store().text(u"select date from games"_s), key_of_keyed_round());
    }
};

QTEST_MAIN(test_removed_key)
#include "test_removed_key.moc"
