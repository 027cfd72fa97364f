#include <QApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>

#include <cstdio>

#include "Connection1.h"
#include "program_run.h"
#include "start_up.h"

using namespace verdane;
using verdane::testing::hand;
using verdane::testing::one_course;
using verdane::testing::one_round;
using verdane::testing::play;
using verdane::testing::program_run;

namespace {

const QString round_key = QStringLiteral("20260614093000");
constexpr int figures_of_a_hole = 11;
constexpr int default_kills = 30;
constexpr int longest_life_ms = 900;

/// The columns of a hole in the order in which the quick page takes its figures.
QStringList columns_of(int hole)
{
    QStringList columns;
    for (const char* name :
         {"games.long_", "games.approach_", "games.putt_", "games2.fairway_", "games2.sand_", "games.missed_",
          "games2.recovery_", "games.pen_water_", "games.pen_lost_", "games.pen_rule_", "games.pen_bounds_"})
        columns << QStringLiteral("coalesce(%1%2, 0)").arg(QLatin1String(name)).arg(hole);
    return columns;
}

int kills_wanted()
{
    bool given = false;
    const int kills = qEnvironmentVariableIntValue("VERDANE_KILLS", &given);
    return given ? kills : default_kills;
}

void say(const QString& line)
{
    std::printf("%s\n", qUtf8Printable(line));
    std::fflush(stdout);
}

QString random_figures(QRandomGenerator& random)
{
    QString figures;
    for (int place = 0; place < figures_of_a_hole; ++place)
        figures += QString::number(random.bounded(10));
    return figures;
}

/// The victim: reopens the round and tells hole after hole, saying what it types before it leaves a
/// hole and that it has left it afterwards, until it is killed.
void enter_until_killed(hand& user, quint32 seed)
{
    QRandomGenerator random(seed);
    user.wait_for_window(QStringLiteral("MainForm"));
    user.menu(QStringLiteral("mnOPenr"));
    user.wait_for_window(QStringLiteral("f_games"));
    user.double_click_row(QStringLiteral("List1"), 0);
    user.wait_for_window(QStringLiteral("f_new_round"));
    for (int hole = 1;; hole = hole % 18 + 1) {
        user.click_tab(QStringLiteral("TabStrip1"), hole);
        const QString figures = random_figures(random);
        user.type(figures);
        say(QStringLiteral("typed %1 %2").arg(hole).arg(figures));
        user.click_tab(QStringLiteral("TabStrip1"), hole % 18 + 1);
        say(QStringLiteral("left %1 %2").arg(hole).arg(figures));
    }
}

int be_the_victim(quint32 seed)
{
    int status = -1;
    play([&] { status = run_verdane(*qApp); }, [seed](hand& user) { enter_until_killed(user, seed); });
    return status;
}

/// What a victim said before it died: the figures of every hole that it had left, and the one that it
/// was about to leave.
struct last_words {
    QMap<int, QString> left;
    int leaving = 0;
    QString leaving_figures;
};

last_words understood(const QByteArray& said)
{
    last_words words;
    for (const QByteArray& line : said.split('\n')) {
        const QStringList parts = QString::fromLatin1(line).split(u' ');
        if (parts.size() != 3 || parts.at(2).size() != figures_of_a_hole)
            continue;
        const int hole = parts.at(1).toInt();
        if (parts.at(0) == u"left") {
            words.left[hole] = parts.at(2);
            words.leaving = 0;
        } else {
            words.leaving = hole;
            words.leaving_figures = parts.at(2);
        }
    }
    return words;
}

last_words killed_after(int life_ms, quint32 seed)
{
    QProcess victim;
    victim.start(QCoreApplication::applicationFilePath(),
                 {QStringLiteral("--victim"), QString::number(seed)});
    victim.waitForStarted();
    QElapsedTimer life;
    QByteArray said;
    // Its life is counted from the first figures, so that a slow start does not make an idle kill.
    while (!said.contains("typed") && victim.state() == QProcess::Running && victim.waitForReadyRead(60000))
        said += victim.readAllStandardOutput();
    life.start();
    while (life.elapsed() < life_ms && victim.state() == QProcess::Running) {
        victim.waitForReadyRead(5);
        said += victim.readAllStandardOutput();
    }
    victim.kill();
    victim.waitForFinished();
    return understood(said + victim.readAllStandardOutput());
}

}  // namespace

class test_kills : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_program_killed_at_any_moment_loses_no_committed_hole()
    {
        const int kills = kills_wanted();
        QRandomGenerator random(20260614);
        program_run run(1, one_course() + one_round(round_key));
        QMap<int, QString> expected;
        int holes_seen = 0;
        for (int kill = 0; kill < kills; ++kill) {
            const last_words words = killed_after(random.bounded(longest_life_ms), random.generate());
            holes_seen += static_cast<int>(words.left.size());
            expected.insert(words.left);
            compare_with_store(run, expected, words);
            start_again_and_compare(run, expected, words);
            if (QTest::currentTestFailed())
                return;
        }
        QVERIFY2(holes_seen >= kills / 2,
                 qPrintable(QStringLiteral("only %1 holes were left").arg(holes_seen)));
    }

private:
    static QString stored(const program_run& run, int hole)
    {
        QString figures;
        const auto rows = run.store().rows(
            u"select " + columns_of(hole).join(u", ") +
            u" from games, games2 where games.date = games2.date and games.date = '" + round_key + u"'");
        for (const QVariant& figure : rows.at(0))
            figures += figure.toString();
        return figures;
    }

    /// The figures of one table's columns: those at these places.
    static QString part(const QString& figures, const QList<int>& places)
    {
        QString chosen;
        for (const int place : places)
            chosen += figures.at(place);
        return chosen;
    }

    /// A hole that was left is stored. Of the one that was being left, each of the two tables, which are
    /// committed one after the other, holds the old figures or the new ones and no mixture.
    static void compare_with_store(const program_run& run, QMap<int, QString>& expected,
                                   const last_words& words)
    {
        QCOMPARE(run.store().text(QStringLiteral("pragma integrity_check")), QStringLiteral("ok"));
        for (auto hole = expected.begin(); hole != expected.end(); ++hole) {
            if (hole.key() != words.leaving)
                QCOMPARE(stored(run, hole.key()), hole.value());
        }
        if (words.leaving == 0)
            return;
        const QString old = expected.value(words.leaving, QString(figures_of_a_hole, u'0'));
        const QString now = stored(run, words.leaving);
        for (const QList<int>& places : {QList<int>{0, 1, 2, 5, 7, 8, 9, 10}, QList<int>{3, 4, 6}}) {
            const QString seen = part(now, places);
            QVERIFY2(seen == part(old, places) || seen == part(words.leaving_figures, places),
                     qPrintable(QStringLiteral("hole %1: %2 is no part of %3 or %4")
                                    .arg(words.leaving)
                                    .arg(now, old, words.leaving_figures)));
        }
        expected[words.leaving] = now;
    }

    /// The program opens again and shows what is stored.
    static void start_again_and_compare(program_run& run, const QMap<int, QString>& expected,
                                        const last_words& words)
    {
        if (expected.isEmpty())
            return;
        const int hole = words.left.isEmpty() ? expected.firstKey() : words.left.lastKey();
        run.play_through([&](hand& user) {
            user.wait_for_window(QStringLiteral("MainForm"));
            user.menu(QStringLiteral("mnOPenr"));
            user.wait_for_window(QStringLiteral("f_games"));
            user.double_click_row(QStringLiteral("List1"), 0);
            user.wait_for_window(QStringLiteral("f_new_round"));
            user.click_tab(QStringLiteral("TabStrip1"), hole);
            user.same(user.text(QStringLiteral("text_vrd_0")), expected[hole].left(1),
                      QStringLiteral("long shots"));
            user.same(user.text(QStringLiteral("text_s_11")), expected[hole].right(1),
                      QStringLiteral("out of bounds"));
            user.click(QStringLiteral("Command1_2"));
            user.answer({QStringLiteral("Voulez vous enregistrer les modifications avant de sortir ? "),
                         QMessageBox::NoIcon, QString(),
                         QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel},
                        QMessageBox::No);
            user.wait_until_gone(QStringLiteral("f_new_round"));
            user.menu(QStringLiteral("mQuit"));
        });
    }
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    prepare_application(application);
    if (argc == 3 && QByteArray(argv[1]) == "--victim")
        return be_the_victim(QByteArray(argv[2]).toUInt());
    test_kills test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_kills.moc"
