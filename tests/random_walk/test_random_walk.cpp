#include <QApplication>
#include <QTest>

#include "shell/start_up.h"
#include "tests/random_walk/walker.h"
#include "tests/shell/program_run.h"
#include "tests/support/store_invariants.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using verdane::testing::broken_invariants;
using verdane::testing::hand;
using verdane::testing::one_course;
using verdane::testing::one_round;
using verdane::testing::program_run;
using verdane::testing::walker;

namespace {

int from_environment(const char* name, int default_value)
{
    bool given = false;
    const int value = qEnvironmentVariableIntValue(name, &given);
    return given ? value : default_value;
}

}  // namespace

class test_random_walk : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { prepare_application(*qApp); }

    void after_thousands_of_keys_and_clicks_the_store_is_valid_and_has_the_shown_figures()
    {
        const int steps = from_environment("VERDANE_WALK_STEPS", 3000);
        const int seed = from_environment("VERDANE_WALK_SEED", 20260614);
        program_run run(1, one_course() + one_round(u"20260614093000"_s) + one_round(u"20260615093000"_s));
        int compared = 0;
        int answered = 0;
        const int status = run.play_through([&](hand& user) {
            user.wait_for_window(u"MainForm"_s);
            walker golfer(user, run.store(), static_cast<quint32>(seed));
            golfer.walk(steps);
            golfer.close_all_windows();
            compared = golfer.holes_compared();
            answered = golfer.boxes_answered();
            user.menu(u"mQuit"_s);
        });
        QCOMPARE(status, 0);
        QCOMPARE(broken_invariants(run.store()), QStringList());
        QCOMPARE(run.store().number(u"select count(*) from games"_s), 2);
        QVERIFY2(compared > steps / 50, qPrintable(u"%1 holes compared"_s.arg(compared)));
        QVERIFY2(answered > steps / 100, qPrintable(u"%1 boxes answered"_s.arg(answered)));
    }
};

QTEST_MAIN(test_random_walk)
#include "test_random_walk.moc"
