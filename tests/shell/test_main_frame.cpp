#include <QAction>
#include <QContextMenuEvent>
#include <QMenuBar>
#include <QTest>

#include "controls/Form.h"
#include "controls/main_frame.h"
#include "shell/MainForm.h"
#include "shell/start_up.h"
#include "tests/shell/main_windows.h"
#include "tests/shell/program_run.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using verdane::testing::entry;
using verdane::testing::hand;
using verdane::testing::in_main_window;
using verdane::testing::one_course;
using verdane::testing::one_round;
using verdane::testing::program_run;
using verdane::testing::tool;

namespace {

/// A window that counts the calls of the main window.
struct counting_form : Form {
    counting_form() : Form(u"f_counting") {}
    void save() override { ++saves; }
    void closeForm() override { ++closes; }
    int saves = 0;
    int closes = 0;
};

}  // namespace

/// The main window, except its commands that open windows.
class test_main_frame : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { prepare_application(*qApp); }

    void a_change_of_language_changes_captions_tick_and_picture()
    {
        in_main_window(1, {}, [](hand& user) {
            for (const bool english : {true, false}) {
                user.menu(english ? u"mEn"_s : u"mfr"_s);
                user.look([&] {
                    QCOMPARE(entry(u"mfile"_s)->text(), english ? u"&File"_s : u"&Fichier"_s);
                    QCOMPARE(entry(u"mQuit"_s)->text(), english ? u"&Exit"_s : u"&Quitter"_s);
                    QCOMPARE(entry(u"mEn"_s)->isChecked(), english);
                    QCOMPARE(entry(u"mfr"_s)->isChecked(), !english);
                    auto* frame = MainForm::of_run();
                    QCOMPARE(frame->findChild<QWidget*>(u"Picture1"_s)->isVisible(), !english);
                    QCOMPARE(frame->findChild<QWidget*>(u"Picture2"_s)->isVisible(), english);
                });
            }
        });
    }

    void save_and_close_act_on_the_current_window_data()
    {
        QTest::addColumn<bool>("by_menu");
        QTest::newRow("tool buttons") << false;
        QTest::newRow("menu entries, enabled by the test") << true;
    }

    void save_and_close_act_on_the_current_window()
    {
        QFETCH(bool, by_menu);
        in_main_window(1, {}, [&](hand& user) {
            user.look([&] {
                counting_form window;
                current_form = &window;
                Lock_menu();
                const auto run = [&](const char* menu_name, const char* key) {
                    if (by_menu) {
                        entry(QString::fromLatin1(menu_name))->setEnabled(true);
                        entry(QString::fromLatin1(menu_name))->trigger();
                    } else {
                        QTest::mouseClick(tool(QString::fromLatin1(key)), Qt::LeftButton);
                    }
                };
                run("mnSave", "B4");
                QCOMPARE(window.saves, 1);
                QVERIFY(!entry(u"mOpen"_s)->isEnabled());
                run("mClose", "B5");
                QCOMPARE(window.closes, 1);
                QVERIFY(entry(u"mOpen"_s)->isEnabled());
            });
        });
    }

    void the_context_menu_that_hides_the_toolbar_is_not_shown()
    {
        in_main_window(1, {}, [](hand& user) {
            user.look([] {
                auto* frame = MainForm::of_run();
                for (QWidget* place :
                     {static_cast<QWidget*>(frame->menuBar()), frame->findChild<QWidget*>(u"Toolbar1"_s)}) {
                    const QPoint middle = place->rect().center();
                    QContextMenuEvent event(QContextMenuEvent::Mouse, middle, place->mapToGlobal(middle));
                    QCoreApplication::sendEvent(place, &event);
                    QVERIFY(!QApplication::activePopupWidget());
                }
            });
        });
    }

    void closing_the_main_window_closes_the_round_list_data()
    {
        QTest::addColumn<int>("language");
        QTest::addColumn<QString>("list");
        QTest::newRow("French") << 1 << "f_games";
        QTest::newRow("English") << 2 << "f_games_en";
    }

    void closing_the_main_window_closes_the_round_list()
    {
        QFETCH(int, language);
        QFETCH(QString, list);
        program_run run(language, one_course() + one_round());
        const int status = run.play_through([&](hand& user) {
            user.wait_for_window(u"MainForm"_s);
            user.menu(u"mnOPenr"_s);
            user.wait_for_window(list);
            user.look([] {
                MainForm::of_run()->close();
                QVERIFY(!open_form(u"f_games"));
            });
        });
        QCOMPARE(status, 0);
    }
};

QTEST_MAIN(test_main_frame)
#include "test_main_frame.moc"
