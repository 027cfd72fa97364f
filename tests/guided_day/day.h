#pragma once

#include <QMessageBox>
#include <QString>

#include "album.h"
#include "hand.h"
#include "language.h"
#include "played_round.h"
#include "reader.h"
#include "scorecards.h"

namespace verdane::guided_day {

/// One day of golf in one language: who plays, what is seen, where it is kept.
struct day {
    bool french;
    testing::hand& user;
    album pictures;
    testing::reader store;
    const testing::scorecard& card;
    played_round round;

    /// The name of a window's twin.
    QString window(const QString& family) const { return french ? family : family + u"_en"; }
    QString words(QStringView in_french, QStringView in_english) const
    {
        return text_pair{in_french, in_english}.in(french);
    }
    /// A picture of a window, named after what it shows and the language.
    void keep(const QString& family, const QString& name) const
    {
        pictures.keep(window(family), name + (french ? u"_fr" : u"_en"));
    }
    void answer(QStringView in_french, QStringView in_english, QMessageBox::Icon icon = QMessageBox::NoIcon,
                QMessageBox::StandardButtons buttons = QMessageBox::Ok,
                QMessageBox::StandardButton answer = QMessageBox::Ok,
                const QString& title = QStringLiteral("Verdane")) const
    {
        user.answer({words(in_french, in_english), icon, title, buttons}, answer);
    }
};

// The scenes of a day, in the order in which they are played.
void choose_first_language(day& today);
void change_language(day& today);
void look_around(day& today);
void describe_course(day& today);
void keep_partners(day& today);
void play_round(day& today);
void reopen_round(day& today);
void print_statistic(day& today);
void check_store(day& today);
void remove_round(day& today);
void leave_program(day& today);

/// Fills the tee-off dialog, which a new round opens with, and settles the moment.
void tee_off(day& today, const QString& hours, const QString& minutes, const QString& seconds);

}  // namespace verdane::guided_day
