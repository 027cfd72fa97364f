#include "tests/windows/every_view.h"

#include <QWidget>

#include "base/language.h"
#include "tests/shell/program_run.h"
#include "tests/support/full_diary.h"
#include "tests/support/hand_widgets.h"

using namespace Qt::StringLiterals;

namespace verdane::testing {

namespace {

constexpr int not_chosen = 0;
constexpr int rounds_of_diary = 20;

/// The program with a diary, and what is to be looked at.
struct walk {
    hand& user;
    bool french;
    const look_at_view& look;

    QString twin(const QString& family) const { return french ? family : family + u"_en"; }

    /// Looks at a window in the state in which it is.
    void see(const QString& window, const QString& view) const
    {
        user.wait_for_window(window);
        look(user, view, window);
    }

    /// Looks at a window that was just opened, and closes it by a button.
    void see_and_close(const QString& family, const QString& button) const
    {
        see(twin(family), family);
        close(family, button);
    }

    void close(const QString& family, const QString& button) const
    {
        user.click(button);
        user.wait_until_gone(twin(family));
    }
};

void visit_shell(const walk& now)
{
    now.see(u"MainForm"_s, u"MainForm"_s);
    now.user.menu(u"maprop"_s);
    now.see_and_close(u"f_about"_s, u"cmdOK"_s);
}

void visit_courses(const walk& now)
{
    now.user.menu(u"mManagF"_s);
    now.see(now.twin(u"f_c_list"_s), u"f_c_list"_s);
    now.user.click(u"Command1_0"_s);
    now.user.wait_for_window(now.twin(u"f_courses"_s));
    for (const int page : {1, 2, 3}) {
        now.user.click_tab(u"TabStrip1"_s, page);
        now.see(now.twin(u"f_courses"_s), u"f_courses page %1"_s.arg(page));
    }
    now.user.click(u"cmdan"_s);
    now.user.answer({in_language(u"Voulez vous enregistrer les modifications avant de sortir ?  ",
                                 u"Do you want to save the modification made ?  "),
                     QMessageBox::NoIcon, u"Fermer ronde"_s,
                     QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel},
                    QMessageBox::No);
    now.user.wait_until_gone(now.twin(u"f_courses"_s));
    now.close(u"f_c_list"_s, u"Command1_2"_s);
}

void visit_partners_and_bag(const walk& now)
{
    now.user.menu(u"mpartners"_s);
    now.see_and_close(u"f_partners"_s, u"cmdAn"_s);
    now.user.menu(u"mnBat"_s);
    now.see(now.twin(u"f_sticks"_s), u"f_sticks"_s);
    now.user.click(u"Command1"_s);
    now.see(now.twin(u"f_sticks"_s), u"f_sticks with filters"_s);
    now.close(u"f_sticks"_s, u"Fer"_s);
}

void leave_round(const walk& now)
{
    now.user.click(u"Command1_2"_s);
    now.user.answer({in_language(u"Voulez vous enregistrer les modifications avant de sortir ? ",
                                 u"Do you want to save your changes prior to exit?"),
                     QMessageBox::NoIcon, QString(),
                     QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel},
                    QMessageBox::No);
    now.user.wait_until_gone(now.twin(u"f_new_round"_s));
}

void visit_round(const walk& now)
{
    const QString round = now.twin(u"f_new_round"_s);
    now.user.wait_for_window(round);
    now.see(round, u"f_new_round"_s);
    now.user.click(u"Command2"_s);
    now.see_and_close(u"f_cost"_s, u"OKButton"_s);
    now.user.click_tab(u"TabStrip2"_s, 2);
    now.see(round, u"f_new_round shot by shot"_s);
    now.user.click_tab(u"TabStrip1"_s, 18);
    now.see(round, u"f_new_round shot by shot on hole 18"_s);
    now.user.click_tab(u"TabStrip2"_s, 1);
    now.see(round, u"f_new_round on hole 18"_s);
    leave_round(now);
}

void visit_rounds(const walk& now)
{
    now.user.menu(u"mOpen"_s);
    now.see(u"f_get_date"_s, u"f_get_date"_s);
    now.user.click(u"Command1"_s);
    now.user.wait_until_gone(now.twin(u"f_new_round"_s));
    now.user.menu(u"mnOPenr"_s);
    now.see(now.twin(u"f_games"_s), u"f_games"_s);
    now.user.double_click_row(u"List1"_s, rounds_of_diary - 1);
    visit_round(now);
}

void visit_preview(const walk& now)
{
    now.see(u"report_preview"_s, u"report_preview"_s);
    now.user.close_window(u"report_preview"_s);
    now.user.wait_until_gone(u"report_preview"_s);
    // Without a window manager nothing gives the keyboard back to the window below.
    now.user.look([] { windows_taking_input().constLast()->activateWindow(); });
}

void visit_statistics(const walk& now)
{
    for (const QString& entry : {u"mnStabat"_s, u"mnStatcr"_s, u"mnstatr"_s, u"mncouts"_s}) {
        now.user.menu(entry);
        now.see_and_close(u"f_date_range"_s, u"CancelButton"_s);
    }
    now.user.menu(u"mCarte"_s);
    now.see(now.twin(u"f_carte"_s), u"f_carte"_s);
    now.user.click(u"Command1_0"_s);
    visit_preview(now);
    now.close(u"f_carte"_s, u"Command1_1"_s);
}

void visit_all(const walk& now)
{
    now.see(u"f_lang"_s, u"f_lang"_s);
    now.user.click(now.french ? u"Command1_1"_s : u"Command1_0"_s);
    visit_shell(now);
    visit_courses(now);
    visit_partners_and_bag(now);
    visit_rounds(now);
    visit_statistics(now);
    now.user.menu(u"mQuit"_s);
}

}  // namespace

void visit_every_view(bool french, const look_at_view& look)
{
    program_run run(not_chosen);
    lay_down_diary(run.store_path(), rounds_of_diary, true);
    run.play_through([&](hand& user) { visit_all({user, french, look}); });
}

}  // namespace verdane::testing
