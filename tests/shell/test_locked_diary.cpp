#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QTest>

#include <cstdio>

#include "base/failure_words.h"
#include "base/run_time_failure.h"
#include "controls/boxes.h"
#include "shell/start_up.h"
#include "tests/shell/program_run.h"
#include "tests/support/hand_widgets.h"
#include "tests/support/languages.h"
#include "tests/support/other_program.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

const QString notice = u"lock_box"_s;
const QString hole_tabs = u"TabStrip1"_s;
const QString first_hole = u"12345678123"_s;

void open_round(hand& user, const QString& suffix)
{
    user.wait_for_window(u"MainForm"_s);
    user.menu(u"mnOPenr"_s);
    user.wait_for_window(u"f_games" + suffix);
    user.double_click_row(u"List1"_s, 0);
    user.wait_for_window(u"f_new_round" + suffix);
}

void close_round(hand& user, const QString& suffix)
{
    user.click(u"Command1_4"_s);
    user.wait_until_closed(u"f_new_round" + suffix);
    user.menu(u"mQuit"_s);
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
             open_round(user, u"_en"_s);
             user.type(first_hole);
             user.click_tab(hole_tabs, 2);
             const other_program other(program_run::store_place());
             user.type(first_hole);
             user.click_tab(hole_tabs, 3);
             user.wait_for_window(notice);
             if (way == u"--escape")
                 user.key(Qt::Key_Escape);
             else
                 user.click(u"give_up"_s);
             user.wait_for_window(u"failure_box"_s);
             std::printf("%s|%d\n", qUtf8Printable(user.text(u"qt_msgbox_label"_s)), user.is_open(notice));
             std::fflush(stdout);
             user.key(Qt::Key_Return);
         });
    return status;
}

}  // namespace

/// Another program has locked the diary when a hole is left.
class test_locked_diary : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_round_continues_when_the_lock_is_released_data() { both_languages(); }
    void the_round_continues_when_the_lock_is_released()
    {
        QFETCH(bool, french);
        const QString suffix = french ? QString() : u"_en"_s;
        program_run run(french ? 1 : 2, one_course() + one_round());
        const int status = run.play_through([&](hand& user) {
            open_round(user, suffix);
            other_program other(program_run::store_place());
            user.type(first_hole);
            user.click_tab(hole_tabs, 2);
            user.wait_for_window(notice);
            QString words;
            user.look([&] { words = words_of_notice(); });
            user.same(words,
                      french ? u"Le journal est utilisé par un autre programme. Verdane attend "
                               u"qu'il soit libre.|Si vous abandonnez, Verdane s'arrête. Ce qui "
                               u"était enregistré est intact.|Verdane|Abandonner"_s
                             : u"The diary is in use by another program. Verdane waits until "
                               u"it is free.|If you give up, Verdane stops. What was saved is "
                               u"intact.|Verdane|Give Up"_s,
                      u"the notice"_s);
            keep_picture_of_notice(user, suffix);
            other.release();
            user.wait_until_closed(notice);
            user.same(figure(run, u"long_1"_s), 1, u"long shots"_s);
            user.same(figure(run, u"fairway_1"_s), 4, u"fairways"_s);
            // The focus is in the first box of the next hole.
            user.type(u"7"_s);
            close_round(user, suffix);
        });
        QCOMPARE(status, 0);
        QCOMPARE(figure(run, u"long_2"_s), 7);
    }

    /// The user may not have seen the notice yet.
    void keys_typed_while_the_notice_is_shown_have_no_effect()
    {
        program_run run(2, one_course() + one_round());
        run.play_through([&](hand& user) {
            open_round(user, u"_en"_s);
            other_program other(program_run::store_place());
            user.type(first_hole);
            user.click_tab(hole_tabs, 2);
            user.wait_for_window(notice);
            user.type(u"99"_s);
            for (const int key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_G, Qt::Key_A})
                user.key(key);
            user.check(user.is_open(notice), u"the notice is still open"_s);
            other.release();
            user.wait_until_closed(notice);
            user.same(user.text(u"text_vrd_0"_s), u"0"_s, u"box"_s);
            close_round(user, u"_en"_s);
        });
        QCOMPARE(figure(run, u"long_1"_s), 1);
        QCOMPARE(figure(run, u"long_2"_s), 0);
    }

    void windows_are_painted_while_the_notice_is_shown()
    {
        program_run run(2, one_course() + one_round());
        paint_counter painted;
        run.play_through([&](hand& user) {
            open_round(user, u"_en"_s);
            other_program other(program_run::store_place());
            user.type(first_hole);
            user.click_tab(hole_tabs, 2);
            user.wait_for_window(notice);
            user.look([&] {
                QWidget* round = visible_window(u"f_new_round_en"_s);
                round->installEventFilter(&painted);
                round->update();
            });
            user.wait_until(u"the round window to be painted"_s, [&] { return painted.count > 0; });
            other.release();
            user.wait_until_closed(notice);
            user.look([&] { visible_window(u"f_new_round_en"_s)->removeEventFilter(&painted); });
            close_round(user, u"_en"_s);
        });
    }

    void giving_up_reports_the_lock_and_keeps_what_was_committed_data()
    {
        QTest::addColumn<QString>("way");
        QTest::newRow("by the button") << u"--button"_s;
        QTest::newRow("by Escape") << u"--escape"_s;
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
        QCOMPARE(figure(run, u"long_1"_s), 1);
        QCOMPARE(figure(run, u"coalesce(long_2, 0) + fairway_2"_s), 0);
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
