#include <QApplication>
#include <QElapsedTimer>
#include <QMap>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <functional>

#include "base/language.h"
#include "shell/start_up.h"
#include "store/Connection1.h"
#include "tests/kills/expected_round.h"
#include "tests/kills/hole_entering_run.h"
#include "tests/kills/round_entering_run.h"
#include "tests/kills/run_log.h"
#include "tests/shell/program_run.h"
#include "tests/support/store_invariants.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

constexpr int default_kills = 30;
constexpr int longest_run_ms = 900;
constexpr int longest_run_of_rounds_ms = 3000;
/// Each run uses other tee-off minutes of one day.
constexpr int most_kills_of_new_rounds = 24 * 60 / rounds_of_a_run;

int kills_wanted()
{
    bool given = false;
    const int kills = qEnvironmentVariableIntValue("VERDANE_KILLS", &given);
    return given ? kills : default_kills;
}

QStringList statements_for_club_names()
{
    QStringList names;
    for (int club = 1; club <= 14; ++club)
        names << u"club_%1 = '%2'"_s.arg(club).arg(club == 14 ? u"Pu"_s : u"C%1"_s.arg(club));
    return {u"update sticknames set " + names.join(u", ")};
}

/// Starts this program again, waits until its output shows that it is busy, kills it `run_ms` milliseconds
/// later and returns its output.
QByteArray output_until_killed(const QStringList& arguments, int run_ms,
                               const std::function<bool(const QByteArray&)>& is_busy)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), arguments);
    process.waitForStarted();
    QElapsedTimer run_time;
    QByteArray output;
    while (!is_busy(output) && process.state() == QProcess::Running && process.waitForReadyRead(60000))
        output += process.readAllStandardOutput();
    run_time.start();
    while (run_time.elapsed() < run_ms && process.state() == QProcess::Running) {
        process.waitForReadyRead(5);
        output += process.readAllStandardOutput();
    }
    process.kill();
    process.waitForFinished();
    return output + process.readAllStandardOutput();
}

run_log log_of_killed_run(bool detailed, int run_ms, quint32 seed)
{
    const QString role = detailed ? u"--shots"_s : u"--figures"_s;
    return read_log(output_until_killed({role, QString::number(seed)}, run_ms, is_under_way));
}

/// The eleven figures of a hole of every round in the order of the quick page, by the time in the key.
QMap<QString, QString> figures_of_rounds(const reader& store, int hole)
{
    QMap<QString, QString> figures;
    const QString columns =
        u"substr(date, 9), long_%1, approach_%1, putt_%1, fairway_%1, sand_%1, missed_%1, recovery_%1, "
        u"pen_water_%1, pen_lost_%1, pen_rule_%1, pen_bounds_%1"_s;
    for (const auto& row :
         store.rows(u"select " + columns.arg(hole) + u" from games join games2 using (date)")) {
        QString& typed = figures[row[0].toString()];
        for (std::size_t place = 1; place < row.size(); ++place)
            typed += QString::number(row[place].toInt());
    }
    return figures;
}

QString expected_figures(int round, int hole)
{
    if (hole != 1 || !starts_with_shots(round))
        return figures_of_new_rounds;
    QString figures;
    for (const int figure : outcome_of(first_shots()).figures)
        figures += QString::number(figure);
    return figures;
}

/// The shots of a round are stored before the round: after a kill there may be shots without a round.
QStringList broken_invariants_of_new_rounds(const reader& store)
{
    QStringList broken = broken_invariants(store);
    broken.erase(
        std::remove_if(broken.begin(), broken.end(),
                       [](const QString& rule) { return rule.startsWith(u"every shot has its round"); }),
        broken.end());
    return broken;
}

}  // namespace

class test_kills : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// Alternately on the quick page and on the detailed page, in both languages, in one round.
    void a_program_killed_at_any_moment_loses_no_committed_hole()
    {
        const int kills = kills_wanted();
        QRandomGenerator random(20260614);
        program_run run(1, one_course() + one_round() + statements_for_club_names());
        expected_round expected(run.store());
        int left_after_figures = 0;
        int left_after_shots = 0;
        for (int kill = 0; kill < kills; ++kill) {
            const bool detailed = kill % 2 == 1;
            run.store().write(u"update settings set language = %1"_s.arg(1 + random.bounded(2)));
            const int run_ms = random.bounded(longest_run_ms);
            const run_log log = log_of_killed_run(detailed, run_ms, random.generate());
            run.store().wait_until_unused();
            (detailed ? left_after_shots : left_after_figures) += log.holes_left();
            QCOMPARE(run.store().damage(), QString());
            QCOMPARE(broken_invariants(run.store()), QStringList());
            QCOMPARE(expected.compare(log), QString());
            restart_and_check(run, expected, log);
            if (QTest::currentTestFailed())
                return;
        }
        QVERIFY2(left_after_figures >= kills / 4, qPrintable(QString::number(left_after_figures)));
        QVERIFY2(left_after_shots >= kills / 4, qPrintable(QString::number(left_after_shots)));
    }

    /// The first save of a round stores its three rows and the figures of its first hole.
    void after_a_kill_a_new_round_is_stored_completely_or_not_at_all()
    {
        const int kills = std::min(std::max(kills_wanted() / 4, 1), most_kills_of_new_rounds);
        QRandomGenerator random(20260615);
        const program_run run(2, one_course() + statements_for_club_names());
        std::size_t holes_left = 0;
        for (int kill = 0; kill < kills; ++kill) {
            const int first_round = kill * rounds_of_a_run;
            const QByteArray output = output_until_killed(
                {u"--rounds"_s, QString::number(first_round)}, random.bounded(longest_run_of_rounds_ms),
                [](const QByteArray& log) { return log.contains("ready"); });
            run.store().wait_until_unused();
            QCOMPARE(run.store().damage(), QString());
            QCOMPARE(broken_invariants_of_new_rounds(run.store()), QStringList());
            const std::vector<left_hole> left = left_holes(output);
            holes_left += left.size();
            check_new_rounds(run.store(), first_round, left);
            if (QTest::currentTestFailed())
                return;
        }
        QVERIFY2(holes_left >= static_cast<std::size_t>(kills), qPrintable(QString::number(holes_left)));
    }

private:
    /// A hole that was left has its figures. A round without its first hole is not stored.
    static void check_new_rounds(const reader& store, int first_round, const std::vector<left_hole>& left)
    {
        const auto first_holes = figures_of_rounds(store, 1);
        const auto second_holes = figures_of_rounds(store, 2);
        for (const left_hole& each : left) {
            const auto& holes = each.hole == 1 ? first_holes : second_holes;
            QCOMPARE(holes.value(time_of_round(each.round)), expected_figures(each.round, each.hole));
        }
        for (int round = first_round; round < first_round + rounds_of_a_run; ++round) {
            const QString time = time_of_round(round);
            if (!first_holes.contains(time))
                continue;
            QCOMPARE(first_holes[time], expected_figures(round, 1));
            const QString second = second_holes[time];
            QVERIFY2(second == expected_figures(round, 2) || second == u"00000000000", qPrintable(second));
        }
    }

    /// The program starts and shows the stored figures of a hole that was left, or else of the last hole.
    static void restart_and_check(program_run& run, const expected_round& expected, const run_log& log)
    {
        int hole = 18;
        if (!log.typed.isEmpty())
            hole = log.typed.lastKey();
        if (!log.entered.isEmpty())
            hole = log.entered.lastKey();
        const int status = run.play_through([&](hand& user) {
            open_the_round(user);
            user.click_tab(u"TabStrip1"_s, hole);
            check_boxes(user, expected.hole(hole));
            if (expected.is_entered(hole))
                check_shots(user, expected.hole(hole).shots);
            leave_unchanged(user);
            user.menu(u"mQuit"_s);
        });
        QCOMPARE(status, 0);
    }

    static void check_boxes(hand& user, const stored_hole& hole)
    {
        const QStringList boxes{u"text_vrd_0"_s, u"text_vrd_1"_s, u"text_vrd_2"_s, u"text_p_3"_s,
                                u"text_p_4"_s,   u"text_p_5"_s,   u"text_p_6"_s,   u"text_s_8"_s,
                                u"text_s_9"_s,   u"text_s_10"_s,  u"text_s_11"_s};
        for (int place = 0; place < figures_of_a_hole; ++place)
            user.same(user.text(boxes[place]), QString::number(hole.figures[static_cast<std::size_t>(place)]),
                      boxes[place]);
    }

    static void check_shots(hand& user, const stored_shots& shots)
    {
        const QString grid = u"details"_s;
        user.click_tab(u"TabStrip2"_s, 2);
        user.same(user.grid_rows(grid), static_cast<int>(shots.size()), u"shots"_s);
        for (int row = 0; row < static_cast<int>(shots.size()); ++row)
            user.same(user.cell(grid, row, 3), QString::number(shots[static_cast<std::size_t>(row)].after),
                      u"distance"_s);
    }

    static void leave_unchanged(hand& user)
    {
        user.click(u"Command1_2"_s);
        user.answer({in_language(u"Voulez vous enregistrer les modifications avant de sortir ? ",
                                 u"Do you want to save your changes prior to exit?"),
                     QMessageBox::NoIcon, QString(),
                     QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel},
                    QMessageBox::No);
        user.wait_until_closed(round_window_name());
    }
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    prepare_application(application);
    const QStringList arguments = application.arguments();
    if (arguments.value(1) == u"--figures" || arguments.value(1) == u"--shots")
        return run_entering_holes(arguments.at(1) == u"--shots", arguments.at(2).toUInt());
    if (arguments.value(1) == u"--rounds")
        return run_entering_rounds(arguments.at(2).toInt());
    test_kills test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_kills.moc"
