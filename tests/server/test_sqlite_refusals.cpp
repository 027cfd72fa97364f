#include <QApplication>
#include <QProcess>
#include <QTest>

#include <cstdio>

#include "base/failure_words.h"
#include "shell/start_up.h"
#include "tests/shell/program_run.h"
#include "tests/support/hand.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// The child process: starts the program and prints the failure.
int start()
{
    play([] { run_verdane(*qApp); },
         [](hand& user) {
             user.wait_for_window(u"failure_box"_s);
             std::printf("failure: %s\ndetails: %s\n", qUtf8Printable(user.text(u"qt_msgbox_label"_s)),
                         qUtf8Printable(user.text(u"qt_msgbox_informativelabel"_s)));
             std::fflush(stdout);
             user.key(Qt::Key_Return);
         });
    return 77;  // Not reached: the failure ends the process.
}

}  // namespace

/// Starts of the program on a source of SQLite whose tables do not fit.
class test_sqlite_refusals : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tables_that_do_not_fit_are_reported_in_both_languages_data()
    {
        QTest::addColumn<QStringList>("changes");
        QTest::addColumn<failure_kind>("kind");
        QTest::addColumn<QString>("named");
        QTest::newRow("missing table")
            << QStringList{u"drop table partners"_s} << failure_kind::source_table << u"partners"_s;
        QTest::newRow("missing column") << QStringList{u"alter table games drop column missed_18"_s}
                                        << failure_kind::source_column << u"missed_18"_s;
        QTest::newRow("renamed column") << QStringList{u"alter table games rename column field to course"_s}
                                        << failure_kind::source_column << u"field"_s;
        QTest::newRow("moved column") << QStringList{u"alter table partners drop column NAME"_s,
                                                     u"alter table partners add column NAME text"_s}
                                      << failure_kind::source_column << u"NAME"_s;
        const QString columns = u"create table partners (NAME text, SURNAME text, AD1 text, AD2 text, "
                                "TEL text, MAIL text, code integer"_s;
        QTest::newRow("column that is the number of the row")
            << QStringList{u"drop table partners"_s, columns + u" primary key)"} << failure_kind::source_type
            << u"code"_s;
        QTest::newRow("table without numbers of rows")
            << QStringList{u"drop table partners"_s, columns + u", primary key (NAME)) without rowid"}
            << failure_kind::source_type << u"WITHOUT ROWID"_s;
    }

    void tables_that_do_not_fit_are_reported_in_both_languages()
    {
        QFETCH(QStringList, changes);
        QFETCH(failure_kind, kind);
        QFETCH(QString, named);
        const program_run run(2, one_course() + one_round());
        run.store().write(changes);
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(), {u"--start"_s});
        QVERIFY(child.waitForFinished(120000));
        const QString said = QString::fromUtf8(child.readAllStandardOutput());
        const text_pair words = failure_words(kind);
        QVERIFY2(said.contains(words.french) && said.contains(words.english), qPrintable(said));
        QVERIFY2(said.section(u"details: "_s, 1).contains(named), qPrintable(said));
        QCOMPARE(child.exitStatus(), QProcess::NormalExit);
        QCOMPARE(child.exitCode(), 1);
        QCOMPARE(run.store().number(u"select count(*) from games"_s), 1);
    }
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    prepare_application(application);
    if (application.arguments().value(1) == u"--start")
        return start();
    test_sqlite_refusals test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_sqlite_refusals.moc"
