#pragma once

#include <QString>

#include <functional>

#include "tests/support/hand.h"
#include "tests/support/reader.h"
#include "tests/support/recording_frame.h"
#include "tests/support/store_folder.h"

/// What the tests of the window of partners share.
namespace verdane::testing {

/// A fresh store with the main window's face beside it, for one test.
class partner_store {
public:
    explicit partner_store(bool french = true) : folder_(french) {}

    void add(const QString& name, const QString& surname, int code) const;
    /// "Alder Ann (1)", "Birch Bob (2)" and "Cedar Cleo (3)".
    void add_three() const;
    /// "NAME,SURNAME,code" of every row that is stored, in the order of their storing.
    QString rows() const;

private:
    store_folder folder_;

public:
    QString path() const { return folder_.path(); }
    reader store{folder_.path()};
    recording_frame frame;
};

/// The window's name in the language of the moment.
QString partner_window();

/// Opens the window as the main window does, runs the script and returns when both are done.
void in_partners(const std::function<void(hand&)>& script);
void show_partners();

/// Clicks a cell and types over what it holds, up to Enter.
void type_into(hand& user, int row, int column, const QString& text);

/// Leaves by OK.
void accept_partners(hand& user);

// The boxes of the window, in the language of the moment.
expected_box refusal_of_missing_name();
expected_box question_on_removal(const QString& name);

}  // namespace verdane::testing
