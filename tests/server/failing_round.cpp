#include "tests/server/failing_round.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>

#include <cstdio>

#include "base/language.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

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

QString figures_of(int hole)
{
    return QString(11, QChar(u'0' + 1 + hole % 9));
}

void leave_hole(hand& user, int hole)
{
    user.type(figures_of(hole));
    user.click_tab(u"TabStrip1"_s, hole + 1);
}

failed_child run_failing_child(const QStringList& arguments, const std::function<void()>& harm)
{
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), arguments);
    while (!child.canReadLine()) {
        if (!child.waitForReadyRead(60000))
            return {.errors = "the child did not report: " + child.readAllStandardError()};
    }
    harm();
    QElapsedTimer time;
    time.start();
    child.write("\n");
    failed_child result;
    result.ended = child.waitForFinished(2 * longest_failure_ms);
    result.took_ms = time.elapsed();
    if (!result.ended)
        child.kill();
    result.crashed = child.exitStatus() == QProcess::CrashExit;
    result.status = child.exitCode();
    result.errors = child.readAllStandardError();
    return result;
}

QStringList faults_of_end(const failed_child& child, int longest_ms)
{
    if (!child.ended)
        return {u"it did not end: "_s + QString::fromUtf8(child.errors)};
    QStringList faults;
    if (child.took_ms >= longest_ms)
        faults << u"it ended after %1 ms"_s.arg(child.took_ms);
    if (child.crashed || child.status != 1 || child.errors.contains("FAIL!"))
        faults << u"it ended with %1: %2"_s.arg(child.crashed ? u"a signal"_s : QString::number(child.status),
                                                QString::fromUtf8(child.errors));
    return faults;
}

QString figures_in_sql(int hole)
{
    QStringList columns;
    for (const QString& name :
         {u"long_"_s, u"approach_"_s, u"putt_"_s, u"fairway_"_s, u"sand_"_s, u"missed_"_s, u"recovery_"_s,
          u"pen_water_"_s, u"pen_lost_"_s, u"pen_rule_"_s, u"pen_bounds_"_s})
        columns << u"coalesce(%1%2, 0)"_s.arg(name).arg(hole);
    return columns.join(u" || ");
}

}  // namespace verdane::testing
