#include "starter.h"

#include <QApplication>

#include <cstdio>

#include "hand.h"
#include "language.h"
#include "start_up.h"
#include "victim.h"

namespace verdane::testing {

namespace {

const QString hole_tabs = QStringLiteral("TabStrip1");

/// Every round is teed off in a minute of its own.
void tee_off(hand& user, int round)
{
    user.menu(QStringLiteral("mOpen"));
    user.wait_for_window(QStringLiteral("f_get_date"));
    user.fill(QStringLiteral("Text1"), QString::number(round / 60));
    user.fill(QStringLiteral("Text2"), QString::number(round % 60));
    user.fill(QStringLiteral("Text3"), QStringLiteral("0"));
    user.click(QStringLiteral("OKbut"));
    user.answer(
        {in_language(u"Cette date est définitive. Êtes vous sûr de la date et l'heure enregistrée ? ",
                     u"You will not be able to change this date afterwards. Do you want to use this date and "
                     u"time? "),
         QMessageBox::NoIcon, QStringLiteral("Verdane"), QMessageBox::Yes | QMessageBox::No},
        QMessageBox::Yes);
    user.wait_for_window(round_window_name());
    user.wait_until(QStringLiteral("the first box"),
                    [&user] { return user.focus() == QStringLiteral("text_vrd_0"); });
}

void enter_round(hand& user, int round)
{
    tee_off(user, round);
    for (const int next : {2, 3}) {
        user.type(figures_of_new_rounds);
        user.click_tab(hole_tabs, next);
    }
    user.click(QStringLiteral("Command1_4"));
    user.wait_for_window(QStringLiteral("MainForm"));
}

}  // namespace

int be_the_starter(int first_round)
{
    int status = -1;
    play([&] { status = run_verdane(*qApp); },
         [first_round](hand& user) {
             user.wait_for_window(QStringLiteral("MainForm"));
             std::printf("ready\n");
             std::fflush(stdout);
             for (int round = first_round; round < first_round + rounds_of_a_run; ++round)
                 enter_round(user, round);
         });
    return status;
}

}  // namespace verdane::testing
