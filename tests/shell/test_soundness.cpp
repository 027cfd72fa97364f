#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QTest>
#include <QThread>

#include <cstdio>

#include "base/failure_words.h"
#include "base/language.h"
#include "shell/start_up.h"
#include "store/Connection1.h"
#include "store/DataEnvironment1.h"
#include "store/recovery/copy_days.h"
#include "tests/shell/program_run.h"
#include "tests/support/failures.h"
#include "tests/support/hand.h"
#include "tests/support/hand_widgets.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

constexpr int page_size = 4096;
/// No copy.
constexpr int none = 1000;

/// Overwrites the first page of a table that the start does not read.
void damage_page_of_costs(const reader& store)
{
    const int page = store.number(u"select rootpage from sqlite_master where name = 'cost'"_s);
    QFile file(program_run::store_path());
    QVERIFY(page > 1 && file.open(QIODevice::ReadWrite));
    QVERIFY(file.seek(qint64(page - 1) * page_size));
    QCOMPARE(file.write(QByteArray(page_size, '\xaa')), page_size);
}

QByteArray content_of_store()
{
    QFile file(program_run::store_path());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QMessageBox* failure_box()
{
    return qobject_cast<QMessageBox*>(visible_window(u"failure_box"_s));
}

/// The child process: starts on the data folder of its parent and prints the failure.
int start_until_it_fails()
{
    int status = -1;
    play([&] { status = run_verdane(*qApp); },
         [](hand& user) {
             // hand::wait_for_window would end the script on a failure.
             while (!user.is_open(u"failure_box"_s))
                 QThread::msleep(5);
             user.look([] {
                 std::printf("%s\n", qUtf8Printable(failure_box()->text()));
                 std::printf("language window: %d\n", visible_window(u"f_lang"_s) != nullptr);
                 std::fflush(stdout);
             });
             user.look([] { failure_box()->button(QMessageBox::Ok)->click(); });
         });
    return status;
}

}  // namespace

/// The whole file is checked after the first window of a start is painted.
class test_soundness : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void damage_in_a_table_that_the_start_does_not_read_is_reported_data()
    {
        QTest::addColumn<int>("language");
        QTest::newRow("language chosen") << 2;
        QTest::newRow("language not chosen yet") << 0;
    }
    void damage_in_a_table_that_the_start_does_not_read_is_reported()
    {
        QFETCH(int, language);
        program_run run(language);
        damage_page_of_costs(run.store());
        const QByteArray before = content_of_store();
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(), {u"--start"_s});
        QVERIFY(child.waitForFinished(120000));
        QCOMPARE(child.exitStatus(), QProcess::NormalExit);
        QCOMPARE(child.exitCode(), 1);
        const QString output = QString::fromUtf8(child.readAllStandardOutput());
        const text_pair words = failure_words(failure_kind::store_damaged);
        QVERIFY2(output.contains(words.french) || output.contains(words.english), qPrintable(output));
        QVERIFY2(output.contains(u"language window: 0"_s), qPrintable(output));
        QCOMPARE(content_of_store(), before);
    }

    void the_failure_names_the_newest_copy_of_a_damaged_file_data()
    {
        QTest::addColumn<bool>("french");
        QTest::addColumn<QList<int>>("days");
        QTest::addColumn<int>("newest");
        QTest::addColumn<int>("future");
        const auto add = [](const char* name, const QList<int>& days, int newest, int future) {
            for (const bool french : {true, false})
                QTest::addRow("%s, %s", name, french ? "French" : "English")
                    << french << days << newest << future;
        };
        add("no copy", {}, none, none);
        add("yesterday and today", {-1, 0}, 0, none);
        add("a day in the future, too", {-40, -2, 3, 400}, -2, 400);
        add("only a day in the future", {1}, none, 1);
    }
    void the_failure_names_the_newest_copy_of_a_damaged_file()
    {
        QFETCH(bool, french);
        QFETCH(QList<int>, days);
        QFETCH(int, newest);
        QFETCH(int, future);
        const program_run run(french ? 1 : 2);
        const QString store = program_run::store_path();
        QVERIFY(QDir().mkpath(folder_of_copies(store)));
        const auto copy_of = [&store](int days_from_today) {
            return path_of_copy(store, QDate::currentDate().addDays(days_from_today));
        };
        for (const int day : days)
            QVERIFY(QFile::copy(store, copy_of(day)));
        damage_page_of_costs(run.store());
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(), {u"--start"_s});
        QVERIFY(child.waitForFinished(120000));
        QString expected = failure_words(failure_kind::store_damaged).in(french);
        if (newest != none)
            expected += text_pair{u"\n\nLa copie la plus récente : ", u"\n\nThe newest copy: "}.in(french) +
                        copy_of(newest);
        if (future != none)
            expected += text_pair{u"\n\nUne copie porte une date future (l'horloge de l'ordinateur était ou "
                                  u"est fausse) : ",
                                  u"\n\nA copy has a date in the future (the clock of the computer was or is "
                                  u"wrong): "}
                            .in(french) +
                        copy_of(future);
        const QString output = QString::fromUtf8(child.readAllStandardOutput());
        QVERIFY2(output.startsWith(expected + u"\nlanguage window"_s), qPrintable(output));
    }

    void a_file_can_be_checked_after_it_was_opened()
    {
        program_run run(2);
        Connection1 sound;
        sound.Open(program_run::store_path(), soundness_check::later);
        sound.check_soundness();
        sound.Close();
        damage_page_of_costs(run.store());
        Connection1 damaged;
        damaged.Open(program_run::store_path(), soundness_check::later);
        QVERIFY(failure_of([&] { damaged.check_soundness(); }) == failure_kind::store_damaged);
    }
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    prepare_application(application);
    if (argc == 2 && QByteArray(argv[1]) == "--start")
        return start_until_it_fails();
    test_soundness test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_soundness.moc"
