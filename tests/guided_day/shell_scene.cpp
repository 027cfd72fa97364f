#include "controls/main_frame.h"
#include "tests/guided_day/day.h"

namespace verdane::guided_day {

void choose_first_language(day& today)
{
    today.user.wait_for_window(QStringLiteral("f_lang"));
    today.pictures.keep(today.user, QStringLiteral("f_lang"), QStringLiteral("f_lang"));
    today.user.click(today.french ? QStringLiteral("Command1_1") : QStringLiteral("Command1_0"));
    today.user.wait_for_window(QStringLiteral("MainForm"));
}

void change_language(visit& now)
{
    now.user.menu(now.french ? QStringLiteral("mfr") : QStringLiteral("mEn"));
    now.user.wait_until(QStringLiteral("the title in the new language"), [&] {
        return main_frame()->frame_widget()->windowTitle() ==
               now.words(u"Verdane pour PC version 1.4", u"Verdane for PC version 1.4");
    });
}

void look_around(day& today)
{
    today.pictures.keep(today.user, QStringLiteral("MainForm"), today.twin(QStringLiteral("main")));
    today.user.menu(QStringLiteral("maprop"));
    today.keep(QStringLiteral("f_about"), QStringLiteral("f_about"));
    today.user.click(QStringLiteral("cmdOK"));
    today.user.wait_until_gone(today.window(QStringLiteral("f_about")));
}

void leave_program(visit& now)
{
    now.user.menu(QStringLiteral("mQuit"));
    now.user.wait_until_gone(QStringLiteral("MainForm"));
}

}  // namespace verdane::guided_day
