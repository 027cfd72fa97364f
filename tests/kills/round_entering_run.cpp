#include "tests/kills/round_entering_run.h"

#include <QApplication>

#include <cstdio>

#include "base/language.h"
#include "shell/start_up.h"
#include "tests/kills/hole_entering_run.h"
#include "tests/support/hand.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

const QString hole_tabs = u"TabStrip1"_s;

/// The tee-off times of rounds differ by at least a minute.
void tee_off(hand& user, int round)
{
    user.menu(u"mOpen"_s);
    user.wait_for_window(u"f_get_date"_s);
    user.fill(u"Text1"_s, QString::number(round / 60));
    user.fill(u"Text2"_s, QString::number(round % 60));
    user.fill(u"Text3"_s, u"0"_s);
    user.click(u"OKbut"_s);
    user.answer(
        {in_language(u"Cette date est définitive. Êtes vous sûr de la date et l'heure enregistrée ? ",
                     u"You will not be able to change this date afterwards. Do you want to use this date and "
                     u"time? "),
         QMessageBox::NoIcon, u"Verdane"_s, QMessageBox::Yes | QMessageBox::No},
        QMessageBox::Yes);
    user.wait_for_window(round_window_name());
    user.wait_until(u"the first box"_s, [&user] { return user.focus() == u"text_vrd_0"_s; });
}

void enter_first_shots(hand& user)
{
    const QString pages = u"TabStrip2"_s;
    user.click_tab(pages, 2);
    enter_shots(user, 1, first_shots());
    user.click_tab(hole_tabs, 2);
    user.click_tab(pages, 1);
}

void enter_hole(hand& user, int round, int hole)
{
    if (hole == 1 && starts_with_shots(round)) {
        enter_first_shots(user);
    } else {
        user.type(figures_of_new_rounds);
        user.click_tab(hole_tabs, hole + 1);
    }
    std::printf("left %d %d\n", round, hole);
    std::fflush(stdout);
}

void enter_round(hand& user, int round)
{
    tee_off(user, round);
    for (const int hole : {1, 2})
        enter_hole(user, round, hole);
    user.click(u"Command1_4"_s);
    user.wait_for_window(u"MainForm"_s);
}

}  // namespace

bool starts_with_shots(int round)
{
    return round % 2 == 0;
}

entered_hole first_shots()
{
    return hole_from(u"1,200,1,2,0,0;9,10,2,1,0,0;14,0,3,1,0,0"_s);
}

QString time_of_round(int round)
{
    const QString hour_and_minute = u"%1%2"_s;
    return hour_and_minute.arg(round / 60, 2, 10, QChar(u'0')).arg(round % 60, 2, 10, QChar(u'0')) + u"00";
}

std::vector<left_hole> left_holes(const QByteArray& output)
{
    std::vector<left_hole> holes;
    // The kill may have cut the last line short.
    const QByteArray whole_lines = output.left(output.lastIndexOf('\n') + 1);
    for (const QByteArray& line : whole_lines.split('\n')) {
        const QList<QByteArray> log = line.split(' ');
        if (log.size() == 3 && log[0] == "left")
            holes.push_back({log[1].toInt(), log[2].toInt()});
    }
    return holes;
}

int run_entering_rounds(int first_round)
{
    int status = -1;
    play([&] { status = run_verdane(*qApp); },
         [first_round](hand& user) {
             user.wait_for_window(u"MainForm"_s);
             std::printf("ready\n");
             std::fflush(stdout);
             for (int round = first_round; round < first_round + rounds_of_a_run; ++round)
                 enter_round(user, round);
         });
    return status;
}

}  // namespace verdane::testing
