#pragma once

#include <QString>
#include <QStringList>

#include <functional>

#include "tests/support/hand.h"
#include "tests/support/reader.h"
#include "tests/support/recording_frame.h"
#include "tests/support/store_folder.h"

namespace verdane {

using namespace Qt::StringLiterals;
class f_new_round;
}  // namespace verdane

/// What the tests of the round window share.
namespace verdane::testing {

/// A course as it stands in the store. The pars go from hole to hole through the digits of `pars`;
/// hole h is 100 + h yards long and has the handicap index 19 - h.
struct stored_course {
    QString code = u"ALPHA-0"_s;
    QString name = u"Alpha"_s;
    QString rating = u"70.5"_s;
    QString slope = u"130"_s;
    QString pars = u"4"_s;
};

/// A fresh store with the main window's face beside it, for one test.
class round_store {
public:
    explicit round_store(bool french = true);

    void add(const stored_course& course) const;
    /// The courses "Alpha" from white (par 4 everywhere) and "Beta" from green (par 5 everywhere).
    void add_two_courses() const;
    void add_partner(const QString& name, const QString& surname, int code) const;
    /// A round on a course with nothing but its key in three rows.
    void add_round(const QString& key, const QString& code = u"ALPHA-0"_s) const;

    /// The text of the one value of a statement; "null" where it is Null.
    QString text(const QString& statement) const;
    int number(const QString& statement) const { return store.number(statement); }
    /// One column of the only round of a table.
    QString of_round(const QString& table, const QString& column) const;
    /// The value at an ordinal of the only row of a table.
    QString at(const QString& table, int ordinal) const;

private:
    store_folder folder_;

public:
    reader store{folder_.path()};
    recording_frame frame;
};

/// The round window's name in the language of the moment.
QString round_window();

/// Starts a new round as the main window does, runs the script and returns when both are done.
void in_new_round(const std::function<void(hand&)>& script);

/// The same, with the round teed off on 14 June 2024 at 9:30:00; the script finds the window with the
/// focus in the first box.
void in_keyed_round(const std::function<void(hand&)>& script);
QString key_of_keyed_round();

/// Opens a stored round as the round list does.
void in_stored_round(const QString& key, const std::function<void(hand&)>& script);

/// Opens a stored round from the script, above whatever window is up.
void in_stored_round_over(hand& user, const QString& key);

/// Opens a stored round of which no window comes up; the script answers what is told instead.
void open_round_that_refuses(const QString& key, const std::function<void(hand&)>& script);

/// Fills the tee-off dialog (the date being 14 June 2024) and presses its OK.
void fill_tee_off(hand& user, const QString& hours, const QString& minutes, const QString& seconds);
/// The same, and answers the question with Yes.
void tee_off(hand& user, const QString& hours, const QString& minutes, const QString& seconds);

/// Leaves the round window by its Cancel, answering that nothing is to be saved.
void discard(hand& user);
/// Leaves the round window by OK.
void accept(hand& user);

/// Runs something with the open round window, in the window thread.
void with_round(hand& user, const std::function<void(f_new_round&)>& routine);

/// The texts of the eleven boxes of the quick page, in the order in which they are typed.
QString boxes(hand& user);

// The boxes of the round window, in the language of the moment.
expected_box question_on_tee_off();
expected_box refusal_of_moment();
expected_box question_on_closing();
expected_box notice_of_save();
expected_box refusal_without_date();

}  // namespace verdane::testing
