#include <QLabel>
#include <QSvgWidget>
#include <QTest>

#include "base/language.h"
#include "controls/boxes.h"
#include "reports/preview/report_preview.h"
#include "reports/query/report_snapshot.h"
#include "shell/f_about.h"
#include "shell/MainForm.h"
#include "shell/start_up.h"
#include "shell/unopened_windows.h"
#include "store/DataEnvironment1.h"
#include "tests/shell/program_run.h"
#include "tests/support/hand_widgets.h"
#include "tests/support/languages.h"
#include "tests/support/store_folder.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using verdane::testing::both_languages;
using verdane::testing::find_control;
using verdane::testing::hand;
using verdane::testing::play;
using verdane::testing::program_run;
using verdane::testing::store_folder;

class test_small_windows : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { prepare_application(*qApp); }
    void init() { is_french = true; }

    void closing_the_about_window_unlocks_the_menu()
    {
        program_run run(1);
        run.play_through([](hand& user) {
            user.wait_for_window(u"MainForm"_s);
            user.menu(u"maprop"_s);
            user.wait_for_window(u"f_about"_s);
            user.look([] { Lock_menu(); });
            user.click(u"cmdOK"_s);
            user.wait_until_closed(u"f_about"_s);
            user.check(user.enabled(u"mOpen"_s), u"menu unlocked"_s);
            user.menu(u"mQuit"_s);
        });
    }

    void the_about_window_shows_which_store_is_open_data() { both_languages(); }
    void the_about_window_shows_which_store_is_open()
    {
        QFETCH(bool, french);
        program_run run(french ? 1 : 2);
        run.play_through([french](hand& user) {
            const QString about = french ? u"f_about"_s : u"f_about_en"_s;
            const QString source =
                french ? u"Source de données ODBC Verdbase"_s : u"ODBC data source Verdbase"_s;
            user.wait_for_window(u"MainForm"_s);
            user.menu(u"maprop"_s);
            user.wait_for_window(about);
            const store_location where = data_environment().connection.location();
            const bool is_file = where.where == store_location::place::file;
            user.same(user.text(u"store"_s), is_file ? Connection1::default_path() : source, u"the store"_s);
            user.click(u"cmdOK"_s);
            user.wait_until_closed(about);
            user.menu(u"mQuit"_s);
        });
    }

    void without_a_system_information_tool_the_about_window_shows_a_notice()
    {
        QVERIFY(system_information_tool().isEmpty());
        for (const bool french : {true, false}) {
            is_french = french;
            f_about window;
            play([&] { window.show_modal(); },
                 [&](hand& user) {
                     user.wait_for_window(window.objectName());
                     user.click(u"cmdSysInfo"_s);
                     user.answer({u"System Information Is Unavailable At This Time"_s, QMessageBox::NoIcon,
                                  default_title(), QMessageBox::Ok});
                     user.click(u"cmdOK"_s);
                 });
        }
    }

    void the_wait_window_has_its_captions()
    {
        wait_form window;
        QCOMPARE(window.objectName(), u"wait"_s);
        QCOMPARE(window.windowTitle(), u"Please Wait"_s);
        QCOMPARE(find_control<QLabel>(window, u"Label1"_s).text(), u"Please Wait"_s);
    }

    void the_report_control_of_the_report_window_opens_its_preview_above_the_window()
    {
        const store_folder store;
        set_report_store(store.location());
        f_report window;
        QCOMPARE(window.objectName(), u"f_report"_s);
        prepare_report(window.cr2(), report_opening::zoomed(75), u"\\r_card2.rpt", u"\\r_card2_en.rpt");
        play([&] { window.show_modal(); },
             [&](hand& user) {
                 user.wait_for_window(u"f_report"_s);
                 user.look([&] { window.cr2().Action(report_control::run_now); });
                 user.wait_for_window(u"report_preview"_s);
                 user.look([&] { QCOMPARE(window.cr2().preview()->parentWidget(), &window); });
                 user.close_window(u"report_preview"_s);
                 user.wait_until_closed(u"report_preview"_s);
                 user.close_window(u"f_report"_s);
             });
    }

    void the_picture_window_is_placed_relative_to_the_main_window()
    {
        MainForm frame;
        f_flash window;
        QCOMPARE(window.pos(), QPoint(frame.width() - 200 / 15, frame.height() - 2400 / 15));
        play([&] { window.show_modal(); },
             [&](hand& user) {
                 user.wait_for_window(u"f_flash"_s);
                 user.look([&] {
                     QCOMPARE(find_control<QSvgWidget>(window, u"Image1"_s).pos(),
                              QPoint(window.width() / 2, window.height() / 2));
                 });
                 user.close_window(u"f_flash"_s);
             });
    }
};

QTEST_MAIN(test_small_windows)
#include "test_small_windows.moc"
