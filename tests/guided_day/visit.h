#pragma once

#include <QMessageBox>
#include <QString>

#include "base/language.h"
#include "tests/guided_day/album.h"
#include "tests/support/hand.h"
#include "tests/support/reader.h"

namespace verdane::guided_day {

using namespace Qt::StringLiterals;

/// The program in one language, with its user, its store and the folder of the pictures.
struct visit {
    bool french;
    testing::hand& user;
    album& pictures;
    testing::reader store;

    /// The name of a window in this language.
    QString window(const QString& family) const { return french ? family : family + u"_en"; }
    QString words(QStringView in_french, QStringView in_english) const
    {
        return text_pair{in_french, in_english}.in(french);
    }
    /// The name of a file in this language.
    QString twin(const QString& name) const { return name + (french ? u"_fr" : u"_en"); }
    void save_picture(const QString& family, const QString& name) const
    {
        pictures.save_picture(user, window(family), twin(name));
    }
    void answer(QStringView in_french, QStringView in_english, QMessageBox::Icon icon = QMessageBox::NoIcon,
                QMessageBox::StandardButtons buttons = QMessageBox::Ok,
                QMessageBox::StandardButton answer = QMessageBox::Ok,
                const QString& title = u"Verdane"_s) const
    {
        user.answer({words(in_french, in_english), icon, title, buttons}, answer);
    }
};

void change_language(visit& now);
void leave_program(visit& now);

}  // namespace verdane::guided_day
