#include <QApplication>
#include <QProcess>
#include <QTest>

#include "base/program.h"
#include "reports/query/report_snapshot.h"
#include "scoring/limits.h"
#include "scoring/round_key.h"
#include "store/Connection1.h"
#include "tests/statistics/selection_windows.h"
#include "tests/support/failure_boxes.h"
#include "tests/support/hand.h"
#include "tests/support/store_folder.h"
#include "tests/support/stored_diary.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

diary_course course()
{
    return flat_course(u"LONG-0"_s, 4, u"72"_s, u"113"_s);
}

/// 366 rounds of 89 strokes are 32574, of 90 strokes 32940.
std::vector<diary_round> full_list(int gross)
{
    std::vector<diary_round> rounds;
    for (int day = 1; day <= most_rounds; ++day) {
        diary_round round{key_of_day(day), course(), same_holes(hole_in(4)), 0, {}};
        round.holes[0].approach += gross - 72;
        rounds.push_back(round);
    }
    return rounds;
}

constexpr int not_reached = 77;

failure_subject hole_7_of_day_2(limited_list list = limited_list::unnamed)
{
    return {
        .list = list, .round = Verdane_tools::key_text(key_of_day(2)), .course = course().name, .hole = 7};
}

/// Runs the round statistics over all rounds and checks the message box of the failure.
void run_round_statistics(int rounds, const failure_subject& subject)
{
    in_selection_window([&](hand& user) {
        select_range(user, 0, rounds - 1);
        run(user);
        answer_no_detail(user);
        user.answer(failure_box(failure_kind::overflow, subject));
    });
}

/// The child process: a sum over many rounds or of one hole exceeds 16 bits, a shot is too long, or a hole
/// has too many putts.
int run_too_much(const QString& what, bool french)
{
    const store_folder store;
    set_interface_language(french);
    set_report_store(store.location());
    const diary book(store.location());
    book.add(course());
    if (what == u"many rounds") {
        book.add(full_list(90));
        run_round_statistics(most_rounds, {.round = Verdane_tools::key_text(key_of_day(1)),
                                           .last_round = Verdane_tools::key_text(key_of_day(most_rounds))});
        return not_reached;
    }
    std::vector<diary_round> rounds = full_list(89);
    rounds.resize(3);
    if (what == u"six putts") {
        book.add(rounds);
        book.store.write(u"update games2 set putt_len_7_1 = 60, putt_len_7_2 = 50, putt_len_7_3 = 40, "
                         "putt_len_7_4 = 30, putt_len_7_5 = 20, putt_len_7_6 = 10 where date = "_s +
                         quoted(key_of_day(2)));
        in_selection_window(
            [](hand& user) {
                select_range(user, 0, 2);
                run(user, statistics_mode::putt);
                user.answer(
                    failure_box(failure_kind::subscript, hole_7_of_day_2(limited_list::putts_of_a_hole)));
            },
            statistics_mode::putt);
    } else if (what == u"one shot") {
        book.add(rounds);
        diary_shot shot;
        shot.key = key_of_day(2);
        shot.hole = 7;
        book.add(shot);
        book.store.write(u"update stat_rounds set before = 32767, after = 3, beyong_hole = 1"_s);
        in_selection_window(
            [](hand& user) {
                select_range(user, 0, 2);
                run(user, statistics_mode::club);
                user.answer(failure_box(failure_kind::overflow, hole_7_of_day_2()));
            },
            statistics_mode::club);
    } else {
        rounds[1].holes[6].long_shots = 32767;
        book.add(rounds);
        run_round_statistics(
            3, {.round = Verdane_tools::key_text(key_of_day(2)), .course = course().name, .hole = 7});
    }
    return not_reached;
}

}  // namespace

class test_statistics_overflow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_strokes_of_a_selection_fit_16_bits()
    {
        const stored_diary store;
        set_report_store(store.location());
        const diary book(store.location());
        store.book.add(course());
        store.book.add(full_list(89));
        in_selection_window([](hand& user) {
            select_range(user, 0, most_rounds - 1);
            run_without_detail(user);
        });
        const auto strokes = stats_row(store.store, 0);
        QCOMPARE(strokes[18] + strokes[19], most_rounds * 89.0);
        QCOMPARE(strokes[20], 89.0);
        QCOMPARE(stats_head(store.store, u"round_count"_s).toInt(), most_rounds);
        QCOMPARE(stats_head(store.store, u"handicap_text"_s).toString(), u" 16.3"_s);
    }

    void a_figure_that_does_not_fit_ends_the_program_and_the_message_names_round_and_hole_data()
    {
        QTest::addColumn<QString>("what");
        QTest::addColumn<bool>("french");
        for (const char* what : {"many rounds", "one hole", "one shot", "six putts"}) {
            for (const bool french : {true, false})
                QTest::addRow("%s, %s", what, french ? "French" : "English")
                    << QString::fromLatin1(what) << french;
        }
    }
    void a_figure_that_does_not_fit_ends_the_program_and_the_message_names_round_and_hole()
    {
        QFETCH(QString, what);
        QFETCH(bool, french);
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(), {u"--run"_s, what, french ? u"fr"_s : u"en"_s});
        QVERIFY(child.waitForFinished(120000));
        const QByteArray errors = child.readAllStandardError();
        QVERIFY2(!errors.contains("FAIL!"), errors.constData());
        QCOMPARE(child.exitStatus(), QProcess::NormalExit);
        QCOMPARE(child.exitCode(), 1);
    }
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    if (argc == 4 && QByteArray(argv[1]) == "--run")
        return run_too_much(QString::fromLatin1(argv[2]), QByteArray(argv[3]) == "fr");
    test_statistics_overflow test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_statistics_overflow.moc"
