#pragma once

#include <QListWidget>

#include <functional>

#include "base/language.h"
#include "controls/boxes.h"
#include "controls/failure_guard.h"
#include "management/f_games.h"
#include "tests/support/diary.h"
#include "tests/support/hand.h"

/// Support for the tests of the removal of rounds.
namespace verdane::testing {

using namespace Qt::StringLiterals;

inline QString list_window()
{
    return in_language(u"f_games", u"f_games_en");
}

inline expected_box question_on_removal()
{
    return {
        in_language(u"Attention : Toutes les données de cette ronde incluant les statistiques des bâtons et "
                    "coups roulés seront supprimées. Voulez-vous continuer ?",
                    u"Attention: All data relative to this round will be removed, included associated "
                    "statistics on clubs and putts. Do you wish to continue?"),
        QMessageBox::NoIcon, default_title(), QMessageBox::Yes | QMessageBox::No};
}

inline expected_box notice_of_removal()
{
    return {in_language(u"Ronde supprimée", u"Round removed"), QMessageBox::Information, default_title(),
            QMessageBox::Ok};
}

/// Adds rounds on the first days of the year, each with two shots on two holes and a row of costs.
inline void add_rounds(const reader& store, int count)
{
    const diary book(store);
    const diary_course course = flat_course(u"ALPHA-0"_s, 4, u"70"_s, u"113"_s);
    book.add(course);
    for (int day = 1; day <= count; ++day) {
        const QString key = key_of_day(day);
        book.add(diary_round{key, course, same_holes(hole_in(4)), 0, {}});
        for (const int hole : {2, 1}) {
            for (const int shot : {1, 2})
                book.add(diary_shot{.key = key, .hole = hole, .shot = shot});
        }
        store.write(u"insert into cost (date, fg) values ('%1', %2)"_s.arg(key).arg(day));
    }
}

/// The days of the month of which each of the four tables has rows, as "1,2 | 1,2 | 1,2 | 1,2".
inline QString days_stored(const reader& store)
{
    QStringList tables;
    for (const QString& table : {u"games"_s, u"games2"_s, u"Stat_rounds"_s, u"cost"_s})
        tables << store.text(u"select ifnull(group_concat(distinct substr(date, 8, 1)), '') from "
                             "(select date from %1 order by date)"_s.arg(table));
    return tables.join(u" | ");
}

inline void in_list(const std::function<void(hand&)>& script)
{
    play([] { run_event([] { f_games().show_modal(); }); },
         [&](hand& user) {
             user.wait_for_window(list_window());
             script(user);
             user.wait_until_closed(list_window());
         });
}

inline void leave_list(hand& user)
{
    user.click(u"Command1_2"_s);
}

inline void remove_round_in_list(hand& user)
{
    user.click(u"Command1_3"_s);
    user.answer(question_on_removal(), QMessageBox::Yes);
    user.answer(notice_of_removal());
    user.wait_for_window(list_window());
}

}  // namespace verdane::testing
