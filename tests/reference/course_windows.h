#pragma once

#include <QString>

#include <functional>

#include "tests/support/hand.h"
#include "tests/support/languages.h"
#include "tests/support/stored_diary.h"

namespace verdane {

using namespace Qt::StringLiterals;
class f_courses;
}  // namespace verdane

/// What the tests of the course windows share.
namespace verdane::testing {

/// A fresh store for the test of a course window.
class course_store : public window_diary {
public:
    explicit course_store(bool french = true);

    void add(const diary_course& course) const { book.add(course); }
    /// A round that is played on the course.
    void add_round(const QString& key, const QString& code) const { book.add(blank_round{key, code}); }
};

/// The courses "Alpha" from white, "Beta" from blue and "Gamma" from red.
void add_three_courses(const course_store& store);

/// Opens the course list as the main window does, runs the script and returns when both are done.
void in_course_list(const std::function<void(hand&)>& script);

/// Opens the list, runs the script, and closes the list by its OK button.
void in_course_list_until_ok(const std::function<void(hand&)>& script);

/// The same, with the editor open on a new course or on a line of the list. The script leaves with the
/// editor closed.
void in_new_course(const std::function<void(hand&)>& script);
void in_stored_course(int line, const std::function<void(hand&)>& script);

/// Leaves the editor by its button, answering that nothing is to be saved.
void discard(hand& user);

/// Fills the three boxes that a course cannot do without.
void fill_required(hand& user, const QString& name);

/// Runs something with the open editor, in the window thread.
void with_editor(hand& user, const std::function<void(f_courses&)>& routine);

// The boxes of the editor, in the language of the moment.
expected_box question_on_closing();
expected_box notice_of_save();
expected_box refusal_of_missing();
expected_box refusal_of_duplicate(const QString& name, const QString& tee);

/// The suffix of the open windows' names: "" or "_en".
QString twin();
QString list_window();
QString editor_window();

}  // namespace verdane::testing
