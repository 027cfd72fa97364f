#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>

#include <functional>

#include "tests/support/hand.h"
#include "tests/support/hand_widgets.h"
#include "tests/support/stored_diary.h"

namespace verdane {
class f_new_round;
}

/// Support for the tests of the round window.
namespace verdane::testing {

/// A fresh store for the test of the round window.
class round_store : public window_diary {
public:
    using window_diary::window_diary;

    void add(const diary_course& course) const { book.add(course); }
    /// Adds "Alpha" with the white tee and par 4 everywhere, and "Beta" with the green tee and par 5.
    void add_two_courses() const;
    void add_partner(const QString& name, const QString& surname, int code) const
    {
        book.add_partner(surname, name, code);
    }
    /// Adds a round whose three rows contain its key and course only.
    void add_round(const QString& key, const QString& code = u"ALPHA-0"_s) const
    {
        book.add(blank_round{key, code});
    }

    /// One column of the only round of a table.
    QString of_round(const QString& table, const QString& column) const;
    /// The value at an ordinal of the only row of a table.
    QString at(const QString& table, int ordinal) const;
};

/// The round window's name in the current language.
QString round_window();

/// Starts a new round as the main window does, runs the script and returns when both are done.
void in_new_round(const std::function<void(hand&)>& script);

/// The same with a tee-off on 14 June 2024 at 9:30:00; the script starts when the window has the focus in the
/// first box.
void in_keyed_round(const std::function<void(hand&)>& script);
QString key_of_keyed_round();

/// Opens a stored round as the round list does.
void in_stored_round(const QString& key, const std::function<void(hand&)>& script);

/// Opens a stored round from a script, above the window that is open.
void in_stored_round_over(hand& user, const QString& key);

/// Opens a stored round that is refused: no window opens, and the script answers the message boxes.
void open_refused_round(const QString& key, const std::function<void(hand&)>& script);

/// Fills the tee-off dialog with a time on 14 June 2024 and clicks its OK.
void fill_tee_off(hand& user, const QString& hours, const QString& minutes, const QString& seconds);
/// The same, and answers the question with Yes.
void tee_off(hand& user, const QString& hours, const QString& minutes, const QString& seconds);

/// Closes the round window by its Cancel button and answers No to the question whether to save.
void discard(hand& user);
/// Closes the round window by OK.
void accept(hand& user);

/// Runs a routine with the open round window in the window thread.
void with_round(hand& user, const std::function<void(f_new_round&)>& routine);

/// The texts of the eleven boxes of the quick page, in the order in which they are typed.
QString boxes(hand& user);

// The message boxes of the round window, in the current language.
expected_box question_on_tee_off();
expected_box refusal_of_moment();
expected_box question_on_closing();
expected_box notice_of_save();
expected_box refusal_without_date();

}  // namespace verdane::testing
