#include <QApplication>
#include <QProcess>
#include <QTest>

#include <cstdio>

#include "base/failure_words.h"
#include "base/run_time_failure.h"
#include "reports/query/report_snapshot.h"
#include "scoring/limits.h"
#include "tests/statistics/selection_windows.h"
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

/// A run over a full list of rounds of that gross; prints the text of the failure.
int run_over_full_list(int gross)
{
    const store_folder store;
    set_report_store(store.location());
    const diary book(store.location());
    book.add(course());
    book.add(full_list(gross));
    in_selection_window([](hand& user) {
        select_range(user, 0, most_rounds - 1);
        run(user);
        answer_no_detail(user);
        user.wait_for_window(u"failure_box"_s);
        std::printf("%s\n", qUtf8Printable(user.text(u"qt_msgbox_label"_s)));
        std::fflush(stdout);
        user.key(Qt::Key_Return);
    });
    return 77;  // not reached: the program has ended with the failure
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

    void strokes_beyond_16_bits_end_the_program_with_the_text_of_an_overflow()
    {
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(), {u"--run"_s, u"90"_s});
        QVERIFY(child.waitForFinished(120000));
        QCOMPARE(child.exitStatus(), QProcess::NormalExit);
        QCOMPARE(child.exitCode(), 1);
        const QString output = QString::fromUtf8(child.readAllStandardOutput());
        QVERIFY2(output.contains(failure_words(failure_kind::overflow).french), qPrintable(output));
    }
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    if (argc == 3 && QByteArray(argv[1]) == "--run")
        return run_over_full_list(QByteArray(argv[2]).toInt());
    test_statistics_overflow test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_statistics_overflow.moc"
