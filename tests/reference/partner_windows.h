#pragma once

#include <QString>

#include <functional>

#include "tests/support/hand.h"
#include "tests/support/stored_diary.h"

/// What the tests of the window of partners share.
namespace verdane::testing {

/// A fresh store for the test of the window of partners.
class partner_store : public window_diary {
public:
    using window_diary::window_diary;

    void add(const QString& name, const QString& surname, int code) const
    {
        book.add_partner(surname, name, code);
    }
    /// "Alder Ann (1)", "Birch Bob (2)" and "Cedar Cleo (3)", in another order.
    void add_three() const;
    /// "NAME,SURNAME,code" of every stored row, in the order of insertion.
    QString rows() const;
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
