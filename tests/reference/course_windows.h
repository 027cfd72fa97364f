#pragma once

#include <QString>

#include <functional>

#include "tests/support/hand.h"
#include "tests/support/languages.h"
#include "tests/support/stored_diary.h"

namespace verdane {
class f_courses;
}  // namespace verdane

/// Support for the tests of the course windows.
namespace verdane::testing {

/// A fresh store for the test of a course window.
class course_store : public window_diary {
public:
    explicit course_store(bool french = true);

    /// Hole h has the stroke index h, since the editor refuses two holes with one index.
    void add(diary_course course) const;
    /// A round that is played on the course.
    void add_round(const QString& key, const QString& code) const { book.add(blank_round{key, code}); }
};

/// Adds "Alpha" with the white tee, "Beta" with the blue and "Gamma" with the red one.
void add_three_courses(const course_store& store);

/// Opens the course list as the main window does, runs the script and returns when both are done.
void in_course_list(const std::function<void(hand&)>& script);

/// Opens the list, runs the script, and closes the list by its OK button.
void in_course_list_until_ok(const std::function<void(hand&)>& script);

/// The same, with the editor open for a new course or for a line of the list. The script closes the
/// editor.
void in_new_course(const std::function<void(hand&)>& script);
void in_stored_course(int line, const std::function<void(hand&)>& script);

/// Closes the editor by its Cancel button and answers No to the question whether to save.
void discard(hand& user);

/// Fills the three required boxes: name, rating and slope.
void fill_required(hand& user, const QString& name);

/// Runs a routine with the open editor in the window thread.
void with_editor(hand& user, const std::function<void(f_courses&)>& routine);

// The message boxes of the editor, in the current language.
expected_box question_on_closing();
expected_box notice_of_save();
expected_box refusal_of_missing();
expected_box refusal_of_duplicate(const QString& name, const QString& tee);

/// The suffix of the open windows' names: "" or "_en".
QString twin();
QString list_window();
QString editor_window();

}  // namespace verdane::testing
