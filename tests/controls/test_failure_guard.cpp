#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QMessageBox>
#include <QProcess>
#include <QTest>

#include <cstdio>

#include "base/failure_words.h"
#include "base/language.h"
#include "base/program.h"
#include "controls/boxes.h"
#include "controls/failure_guard.h"
#include "tests/support/failures.h"
#include "tests/support/hand.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using verdane::testing::failure_of;
using verdane::testing::hand;
using verdane::testing::play;

namespace {

/// What the clipboard contains, on one line.
void print_copied(const char* caption)
{
    std::printf("%s:%s\n", caption,
                qUtf8Printable(QGuiApplication::clipboard()->text().replace(u'\n', u'/')));
    std::fflush(stdout);
}

/// Selects the first letters of the details, as the mouse does, and copies them.
void copy_selected_details(int letters)
{
    auto* label = QApplication::activeModalWidget()->findChild<QLabel*>(u"qt_msgbox_informativelabel"_s);
    label->setFocus();
    label->setSelection(0, letters);
    QTest::keyClick(label, Qt::Key_C, Qt::ControlModifier);
}

/// The child process: fails in an event, prints the text of the message box and what Ctrl+C copies of it, and
/// closes it.
int fail_in_an_event(const QString& language)
{
    if (language != u"not")
        set_interface_language(language == u"fr");
    play([] { run_event([] { throw run_time_failure(failure_kind::store_full, u"insert into x"_s); }); },
         [](hand& user) {
             user.wait_for_window(u"failure_box"_s);
             user.look([] {
                 auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                 std::printf("%s|%d|%s\n", qUtf8Printable(box->text()), static_cast<int>(box->icon()),
                             qUtf8Printable(box->informativeText()));
                 std::fflush(stdout);
             });
             user.key(Qt::Key_C, Qt::ControlModifier);
             user.look([] { print_copied("all"); });
             user.look([] { copy_selected_details(5); });
             user.look([] { print_copied("selected"); });
             user.key(Qt::Key_Return);
         });
    return 77;  // Not reached: the failure ends the process.
}

/// The child process: ignores a failure in an event, and prints what is shown after the event.
int ignore_in_an_event(failure_kind kind)
{
    const auto routine = [kind] {
        finishes_without_failure([kind] { throw run_time_failure(kind, u"first"_s); });
        finishes_without_store_failure([kind] { throw run_time_failure(kind, u"second"_s); });
        std::printf("finished\n");
        std::fflush(stdout);
    };
    play([&routine] { run_event(routine); },
         [kind](hand& user) {
             if (kind != failure_kind::source_lost)
                 return;
             user.wait_for_window(u"failure_box"_s);
             user.look([] {
                 auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                 std::printf("shown:%s\n", qUtf8Printable(box->informativeText()));
                 std::fflush(stdout);
             });
             user.key(Qt::Key_Return);
         });
    return 77;
}

struct ended {
    int status = -1;
    QString output;
};

ended failed_child(const QString& argument, const QString& task = u"--fail"_s)
{
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {task, argument});
    child.waitForFinished(60000);
    return {child.exitStatus() == QProcess::NormalExit ? child.exitCode() : -1,
            QString::fromUtf8(child.readAllStandardOutput())};
}

}  // namespace

class test_failure_guard : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_failure_is_shown_and_ends_the_program_with_status_1_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<bool>("french");
        QTest::addColumn<bool>("english");
        QTest::newRow("French") << "fr" << true << false;
        QTest::newRow("English") << "en" << false << true;
        QTest::newRow("no language set yet") << "not" << true << true;
    }

    void a_failure_is_shown_and_ends_the_program_with_status_1()
    {
        QFETCH(QString, language);
        QFETCH(bool, french);
        QFETCH(bool, english);
        const ended child = failed_child(language);
        QCOMPARE(child.status, 1);
        const text_pair words = failure_words(failure_kind::store_full);
        QCOMPARE(child.output.contains(words.french), french);
        QCOMPARE(child.output.contains(words.english), english);
        QVERIFY2(child.output.contains(u"|3|insert into x"_s), qPrintable(child.output));
    }

    void the_text_and_the_details_of_a_failure_can_be_copied()
    {
        const QString output = failed_child(u"en"_s).output;
        const QString words = failure_words(failure_kind::store_full).english.toString();
        QVERIFY2(output.contains(u"all:"_s + words + u"//insert into x\n"), qPrintable(output));
        QVERIFY2(output.contains(u"selected:inser\n"), qPrintable(output));
    }

    void a_lost_connection_that_a_routine_ignores_ends_the_program_after_the_event()
    {
        const auto child_of = [](failure_kind kind) {
            return failed_child(QString::number(static_cast<int>(kind)), u"--ignore"_s);
        };
        const ended lost = child_of(failure_kind::source_lost);
        QCOMPARE(lost.output, u"finished\nshown:first\n"_s);
        QCOMPARE(lost.status, 1);
        const ended other = child_of(failure_kind::store_locked);
        QCOMPARE(other.output, u"finished\n"_s);
        QCOMPARE(other.status, 77);
    }

    void finishes_without_failure_returns_whether_there_was_none()
    {
        QVERIFY(finishes_without_failure([] {}));
        QVERIFY(!finishes_without_failure([] { throw run_time_failure(failure_kind::misuse, QString()); }));
    }

    void finishes_without_store_failure_ignores_failures_of_the_store_only_data()
    {
        QTest::addColumn<failure_kind>("kind");
        QTest::addColumn<bool>("ignored");
        QTest::newRow("refused row") << failure_kind::store_other << true;
        QTest::newRow("full disk") << failure_kind::store_full << true;
        QTest::newRow("missing table") << failure_kind::missing_table << true;
        QTest::newRow("lost connection to the server") << failure_kind::source_lost << true;
        QTest::newRow("account that may not write") << failure_kind::source_read_only << true;
        QTest::newRow("closed recordset") << failure_kind::misuse << true;
        QTest::newRow("count beyond its range") << failure_kind::overflow << false;
        QTest::newRow("index outside its list") << failure_kind::subscript << false;
        QTest::newRow("no value") << failure_kind::invalid_null << false;
    }
    void finishes_without_store_failure_ignores_failures_of_the_store_only()
    {
        QFETCH(failure_kind, kind);
        QFETCH(bool, ignored);
        bool finished = true;
        const auto seen = failure_of([&] {
            finished = finishes_without_store_failure([&] { throw run_time_failure(kind, QString()); });
        });
        QCOMPARE(!seen.has_value(), ignored);
        QCOMPARE(finished, !ignored);
    }
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    if (argc == 3 && QByteArray(argv[1]) == "--fail")
        return fail_in_an_event(QString::fromLocal8Bit(argv[2]));
    if (argc == 3 && QByteArray(argv[1]) == "--ignore")
        return ignore_in_an_event(static_cast<failure_kind>(QByteArray(argv[2]).toInt()));
    test_failure_guard test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_failure_guard.moc"
