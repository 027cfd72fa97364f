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
#include "tests/kills/kept_round.h"
#include "tests/kills/last_words.h"
#include "tests/kills/starter.h"
#include "tests/kills/victim.h"
#include "tests/shell/program_run.h"
#include "tests/support/store_invariants.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

constexpr int default_kills = 30;
constexpr int longest_life_ms = 900;
constexpr int longest_life_of_starter_ms = 3000;
/// Each run needs minutes of its own in one day.
constexpr int most_kills_of_new_rounds = 24 * 60 / rounds_of_a_run;

int kills_wanted()
{
    bool given = false;
    const int kills = qEnvironmentVariableIntValue("VERDANE_KILLS", &given);
    return given ? kills : default_kills;
}

QStringList a_bag_of_clubs()
{
    QStringList names;
    for (int club = 1; club <= 14; ++club)
        names << u"club_%1 = '%2'"_s.arg(club).arg(club == 14 ? u"Pu"_s : u"C%1"_s.arg(club));
    return {u"update sticknames set " + names.join(u", ")};
}

/// Starts this program again, lets it live for so long after it has said that it is under way, kills it and
/// returns all that it said. A slow start makes no idle kill.
QByteArray said_until_killed(const QStringList& arguments, int life_ms,
                             const std::function<bool(const QByteArray&)>& is_busy)
{
    QProcess victim;
    victim.start(QCoreApplication::applicationFilePath(), arguments);
    victim.waitForStarted();
    QElapsedTimer life;
    QByteArray said;
    while (!is_busy(said) && victim.state() == QProcess::Running && victim.waitForReadyRead(60000))
        said += victim.readAllStandardOutput();
    life.start();
    while (life.elapsed() < life_ms && victim.state() == QProcess::Running) {
        victim.waitForReadyRead(5);
        said += victim.readAllStandardOutput();
    }
    victim.kill();
    victim.waitForFinished();
    return said + victim.readAllStandardOutput();
}

last_words killed_after(bool detailed, int life_ms, quint32 seed)
{
    const QString role = detailed ? u"--teller"_s : u"--typist"_s;
    return understood(said_until_killed({role, QString::number(seed)}, life_ms, is_under_way));
}

/// The eleven figures of a hole of every round, in the order of the quick page, by the time of the round.
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

QString wanted_figures(int round, int hole)
{
    if (hole != 1 || !starts_with_shots(round))
        return figures_of_new_rounds;
    QString figures;
    for (const int figure : outcome_of(first_shots()).figures)
        figures += QString::number(figure);
    return figures;
}

/// The shots of a round are stored before the round is: a kill may leave them without it.
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
    /// On the quick page and on the detailed one by turns, in both languages, over one round.
    void a_program_killed_at_any_moment_loses_no_committed_hole()
    {
        const int kills = kills_wanted();
        QRandomGenerator random(20260614);
        program_run run(1, one_course() + one_round() + a_bag_of_clubs());
        kept_round kept(run.store());
        int left_by_typing = 0;
        int left_by_telling = 0;
        for (int kill = 0; kill < kills; ++kill) {
            const bool detailed = kill % 2 == 1;
            run.store().write(u"update settings set language = %1"_s.arg(1 + random.bounded(2)));
            const int life_ms = random.bounded(longest_life_ms);
            const last_words words = killed_after(detailed, life_ms, random.generate());
            (detailed ? left_by_telling : left_by_typing) += words.holes_left();
            QCOMPARE(run.store().text(u"pragma integrity_check"_s), u"ok"_s);
            QCOMPARE(broken_invariants(run.store()), QStringList());
            QCOMPARE(kept.compare(words), QString());
            start_again_and_look(run, kept, words);
            if (QTest::currentTestFailed())
                return;
        }
        QVERIFY2(left_by_typing >= kills / 4, qPrintable(QString::number(left_by_typing)));
        QVERIFY2(left_by_telling >= kills / 4, qPrintable(QString::number(left_by_telling)));
    }

    /// The first save of a round stores its three rows and the figures of its first hole.
    void a_new_round_is_stored_whole_or_not_at_all()
    {
        const int kills = std::min(std::max(kills_wanted() / 4, 1), most_kills_of_new_rounds);
        QRandomGenerator random(20260615);
        const program_run run(2, one_course() + a_bag_of_clubs());
        std::size_t holes_left = 0;
        for (int kill = 0; kill < kills; ++kill) {
            const int first_round = kill * rounds_of_a_run;
            const QByteArray said = said_until_killed(
                {u"--starter"_s, QString::number(first_round)}, random.bounded(longest_life_of_starter_ms),
                [](const QByteArray& words) { return words.contains("ready"); });
            QCOMPARE(run.store().text(u"pragma integrity_check"_s), u"ok"_s);
            QCOMPARE(broken_invariants_of_new_rounds(run.store()), QStringList());
            const std::vector<left_hole> left = left_holes(said);
            holes_left += left.size();
            look_at_new_rounds(run.store(), first_round, left);
            if (QTest::currentTestFailed())
                return;
        }
        QVERIFY2(holes_left >= static_cast<std::size_t>(kills), qPrintable(QString::number(holes_left)));
    }

private:
    /// A hole that was left has its figures. A round without its first hole is not stored at all.
    static void look_at_new_rounds(const reader& store, int first_round, const std::vector<left_hole>& left)
    {
        const auto first_holes = figures_of_rounds(store, 1);
        const auto second_holes = figures_of_rounds(store, 2);
        for (const left_hole& each : left) {
            const auto& holes = each.hole == 1 ? first_holes : second_holes;
            QCOMPARE(holes.value(time_of_round(each.round)), wanted_figures(each.round, each.hole));
        }
        for (int round = first_round; round < first_round + rounds_of_a_run; ++round) {
            const QString time = time_of_round(round);
            if (!first_holes.contains(time))
                continue;
            QCOMPARE(first_holes[time], wanted_figures(round, 1));
            const QString second = second_holes[time];
            QVERIFY2(second == wanted_figures(round, 2) || second == u"00000000000", qPrintable(second));
        }
    }

    /// The program opens again and shows what is stored, of a hole that was left or else of the last one.
    static void start_again_and_look(program_run& run, const kept_round& kept, const last_words& words)
    {
        int hole = 18;
        if (!words.typed.isEmpty())
            hole = words.typed.lastKey();
        if (!words.told.isEmpty())
            hole = words.told.lastKey();
        const int status = run.play_through([&](hand& user) {
            open_the_round(user);
            user.click_tab(u"TabStrip1"_s, hole);
            look_at_boxes(user, kept.hole(hole));
            if (kept.is_told(hole))
                look_at_shots(user, kept.hole(hole).shots);
            leave_unchanged(user);
            user.menu(u"mQuit"_s);
        });
        QCOMPARE(status, 0);
    }

    static void look_at_boxes(hand& user, const stored_hole& hole)
    {
        const QStringList boxes{u"text_vrd_0"_s, u"text_vrd_1"_s, u"text_vrd_2"_s, u"text_p_3"_s,
                                u"text_p_4"_s,   u"text_p_5"_s,   u"text_p_6"_s,   u"text_s_8"_s,
                                u"text_s_9"_s,   u"text_s_10"_s,  u"text_s_11"_s};
        for (int place = 0; place < figures_of_a_hole; ++place)
            user.same(user.text(boxes[place]), QString::number(hole.figures[static_cast<std::size_t>(place)]),
                      boxes[place]);
    }

    static void look_at_shots(hand& user, const stored_shots& shots)
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
        user.wait_until_gone(round_window_name());
    }
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    prepare_application(application);
    const QStringList arguments = application.arguments();
    if (arguments.value(1) == u"--typist" || arguments.value(1) == u"--teller")
        return be_the_victim(arguments.at(1) == u"--teller", arguments.at(2).toUInt());
    if (arguments.value(1) == u"--starter")
        return be_the_starter(arguments.at(2).toInt());
    test_kills test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_kills.moc"
