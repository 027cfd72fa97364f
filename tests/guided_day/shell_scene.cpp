#include <QFileInfo>
#include <QUrl>
#include <QWidget>

#include <memory>

#include "controls/guide.h"
#include "controls/main_frame.h"
#include "tests/guided_day/day.h"

namespace verdane::guided_day {

using namespace Qt::StringLiterals;

void choose_first_language(day& today)
{
    today.user.wait_for_window(u"f_lang"_s);
    today.pictures.save_picture(today.user, u"f_lang"_s, u"f_lang"_s);
    today.user.click(today.french ? u"Command1_1"_s : u"Command1_0"_s);
    today.user.wait_for_window(u"MainForm"_s);
}

void change_language(visit& now)
{
    // On a screen without a window manager, nothing else gives the window the focus.
    now.user.look([] { main_frame()->frame_widget()->activateWindow(); });
    now.user.menu(now.french ? u"mfr"_s : u"mEn"_s);
    now.user.wait_until(u"the title in the new language"_s, [&] {
        return main_frame()->frame_widget()->windowTitle() ==
               now.words(u"Verdane pour PC version 1.4", u"Verdane for PC version 1.4");
    });
}

namespace {

/// Presses F1 and waits until the program opens a page that exists. No browser is started.
void open_guide_by_key(visit& now)
{
    const auto opened = std::make_shared<QUrl>();
    guide().open = [opened](const QUrl& page) {
        *opened = page;
        return true;
    };
    now.user.key(Qt::Key_F1);
    now.user.wait_until(u"the page of the guide"_s,
                        [&] { return QFileInfo(opened->toLocalFile()).isFile(); });
}

}  // namespace

void show_main_and_about_window(day& today)
{
    today.pictures.save_picture(today.user, u"MainForm"_s, today.twin(u"main"_s));
    open_guide_by_key(today);
    today.user.menu(u"maprop"_s);
    today.save_picture(u"f_about"_s, u"f_about"_s);
    today.user.click(u"cmdOK"_s);
    today.user.wait_until_closed(today.window(u"f_about"_s));
}

void leave_program(visit& now)
{
    now.user.menu(u"mQuit"_s);
    now.user.wait_until_closed(u"MainForm"_s);
}

}  // namespace verdane::guided_day
