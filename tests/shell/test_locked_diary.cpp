#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QTest>

#include <cstdio>

#include "base/run_time_failure.h"
#include "controls/boxes.h"
#include "shell/start_up.h"
#include "tests/shell/program_run.h"
#include "tests/support/hand_widgets.h"
#include "tests/support/languages.h"
#include "tests/support/other_program.h"

using namespace verdane;
using namespace verdane::testing;

namespace {

const QString notice = QStringLiteral("lock_box");
const QString hole_tabs = QStringLiteral("TabStrip1");
const QString first_hole = QStringLiteral("12345678123");

void open_round(hand& user, const QString& suffix)
{
    user.wait_for_window(QStringLiteral("MainForm"));
    user.menu(QStringLiteral("mnOPenr"));
    user.wait_for_window(u"f_games" + suffix);
    user.double_click_row(QStringLiteral("List1"), 0);
    user.wait_for_window(u"f_new_round" + suffix);
}

void close_round(hand& user, const QString& suffix)
{
    user.click(QStringLiteral("Command1_4"));
    user.wait_until_gone(u"f_new_round" + suffix);
    user.menu(QStringLiteral("mQuit"));
}

QMessageBox* shown_notice()
{
    return qobject_cast<QMessageBox*>(visible_window(notice));
}

QString words_of_notice()
{
    const QMessageBox& box = *shown_notice();
    QStringList words{box.text(), box.informativeText(), box.windowTitle()};
    for (QAbstractButton* button : box.buttons())
        words << button->text();
    return words.join(u'|');
}

int figure(const program_run& run, const QString& column)
{
    return run.store().number(u"select " + column + u" from games join games2 using (date)");
}

void keep_picture_of_notice(hand& user, const QString& suffix)
{
    const QString folder = qEnvironmentVariable("VERDANE_PICTURES");
    if (!folder.isEmpty())
        user.picture(notice).save(folder + u"/lock_box" + suffix + u".png");
}

/// The child process: leaves one hole, then another while the diary is locked, and gives up.
int give_up(const QString& way)
{
    int status = -1;
    play([&] { status = run_verdane(*qApp); },
         [&](hand& user) {
             open_round(user, QStringLiteral("_en"));
             user.type(first_hole);
             user.click_tab(hole_tabs, 2);
             const other_program other(program_run::store_path());
             user.type(first_hole);
             user.click_tab(hole_tabs, 3);
             user.wait_for_window(notice);
             if (way == u"--escape")
                 user.key(Qt::Key_Escape);
             else
                 user.click(QStringLiteral("give_up"));
             user.wait_for_window(QStringLiteral("failure_box"));
             std::printf("%s|%d\n", qUtf8Printable(user.text(QStringLiteral("qt_msgbox_label"))),
                         user.is_open(notice));
             std::fflush(stdout);
             user.key(Qt::Key_Return);
         });
    return status;
}

}  // namespace

/// Another program holds the diary while a hole is left.
class test_locked_diary : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_round_continues_once_the_lock_is_free_data() { both_languages(); }
    void the_round_continues_once_the_lock_is_free()
    {
        QFETCH(bool, french);
        const QString suffix = french ? QString() : QStringLiteral("_en");
        program_run run(french ? 1 : 2, one_course() + one_round());
        const int status = run.play_through([&](hand& user) {
            open_round(user, suffix);
            other_program other(program_run::store_path());
            user.type(first_hole);
            user.click_tab(hole_tabs, 2);
            user.wait_for_window(notice);
            QString words;
            user.look([&] { words = words_of_notice(); });
            user.same(words,
                      french
                          ? QStringLiteral("Le journal est utilisé par un autre programme. Verdane attend "
                                           "qu'il soit libre.|Si vous abandonnez, Verdane s'arrête. Ce qui "
                                           "était enregistré est intact.|Verdane|Abandonner")
                          : QStringLiteral("The diary is in use by another program. Verdane waits until "
                                           "it is free.|If you give up, Verdane stops. What was saved is "
                                           "intact.|Verdane|Give Up"),
                      QStringLiteral("the notice"));
            keep_picture_of_notice(user, suffix);
            other.let_go();
            user.wait_until_gone(notice);
            user.same(figure(run, QStringLiteral("long_1")), 1, QStringLiteral("long shots"));
            user.same(figure(run, QStringLiteral("fairway_1")), 4, QStringLiteral("fairways"));
            // The keyboard is back in the first box of the next hole.
            user.type(QStringLiteral("7"));
            close_round(user, suffix);
        });
        QCOMPARE(status, 0);
        QCOMPARE(figure(run, QStringLiteral("long_2")), 7);
    }

    /// Whoever types fast has not seen the notice yet.
    void what_is_typed_meanwhile_neither_answers_the_notice_nor_reaches_the_round()
    {
        program_run run(2, one_course() + one_round());
        run.play_through([&](hand& user) {
            open_round(user, QStringLiteral("_en"));
            other_program other(program_run::store_path());
            user.type(first_hole);
            user.click_tab(hole_tabs, 2);
            user.wait_for_window(notice);
            user.type(QStringLiteral("99"));
            for (const int key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_G, Qt::Key_A})
                user.key(key);
            user.check(user.is_open(notice), QStringLiteral("a key has closed the notice"));
            other.let_go();
            user.wait_until_gone(notice);
            user.same(user.text(QStringLiteral("text_vrd_0")), QStringLiteral("0"), QStringLiteral("box"));
            close_round(user, QStringLiteral("_en"));
        });
        QCOMPARE(figure(run, QStringLiteral("long_1")), 1);
        QCOMPARE(figure(run, QStringLiteral("long_2")), 0);
    }

    void windows_are_painted_while_the_notice_is_up()
    {
        program_run run(2, one_course() + one_round());
        paint_counter painted;
        run.play_through([&](hand& user) {
            open_round(user, QStringLiteral("_en"));
            other_program other(program_run::store_path());
            user.type(first_hole);
            user.click_tab(hole_tabs, 2);
            user.wait_for_window(notice);
            user.look([&] {
                QWidget* round = visible_window(QStringLiteral("f_new_round_en"));
                round->installEventFilter(&painted);
                round->update();
            });
            user.wait_until(QStringLiteral("the round window to be painted"),
                            [&] { return painted.count > 0; });
            other.let_go();
            user.wait_until_gone(notice);
            user.look([&] { visible_window(QStringLiteral("f_new_round_en"))->removeEventFilter(&painted); });
            close_round(user, QStringLiteral("_en"));
        });
    }

    void giving_up_reports_the_lock_and_keeps_what_was_committed_data()
    {
        QTest::addColumn<QString>("way");
        QTest::newRow("by the button") << QStringLiteral("--button");
        QTest::newRow("by Escape") << QStringLiteral("--escape");
    }

    void giving_up_reports_the_lock_and_keeps_what_was_committed()
    {
        QFETCH(QString, way);
        const program_run run(2, one_course() + one_round());
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(), {way});
        QVERIFY(child.waitForFinished(120000));
        QCOMPARE(child.exitStatus(), QProcess::NormalExit);
        QCOMPARE(child.exitCode(), 1);
        QCOMPARE(QString::fromUtf8(child.readAllStandardOutput()).trimmed(),
                 QString(failure_words(failure_kind::store_locked).english + u"|0"));
        QCOMPARE(figure(run, QStringLiteral("long_1")), 1);
        QCOMPARE(figure(run, QStringLiteral("coalesce(long_2, 0) + fairway_2")), 0);
    }

private:
    struct paint_counter : QObject {
        int count = 0;
        bool eventFilter(QObject*, QEvent* event) override
        {
            count += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
    };
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    prepare_application(application);
    const QString way = application.arguments().value(1);
    if (way == u"--button" || way == u"--escape")
        return give_up(way);
    test_locked_diary test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_locked_diary.moc"
