#pragma once

#include <QString>

#include <functional>

#include "tests/support/hand.h"
#include "tests/support/languages.h"
#include "tests/support/reader.h"
#include "tests/support/recording_frame.h"
#include "tests/support/store_folder.h"

namespace verdane {

using namespace Qt::StringLiterals;
class f_courses;
}  // namespace verdane

/// What the tests of the course windows share.
namespace verdane::testing {

/// A course as it stands in the store; every hole alike.
struct stored_course {
    QString code = u"ALPHA-0"_s;
    QString name = u"Alpha"_s;
    QString name_tee = u"Alpha-0"_s;
    QString tee = u"BLANC"_s;
    QString rating = u"70.5"_s;
    QString slope = u"121"_s;
    int yards = 300;
    int par = 4;
};

/// A text between quotes for a statement of a test.
QString sql(const QString& text);

/// Puts a course into a store.
void add_course(const reader& store, const stored_course& course);

/// A fresh store with the main window's face beside it, for one test.
class course_store {
public:
    explicit course_store(bool french = true);

    void add(const stored_course& course) const { add_course(store, course); }
    void add_round(const QString& key, const QString& code) const;

    /// The text of the one value of a statement, "null" where there is none.
    QString text(const QString& statement) const { return store.text(statement); }
    int number(const QString& statement) const { return store.number(statement); }

private:
    store_folder folder_;

public:
    reader store{folder_.path()};
    recording_frame frame;
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
