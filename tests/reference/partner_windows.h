#pragma once

#include <QString>

#include <functional>

#include "tests/support/hand.h"
#include "tests/support/stored_diary.h"

/// Support for the tests of the partner window.
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

/// The window's name in the current language.
QString partner_window();

/// Opens the window as the main window does, runs the script and returns when both are done.
void in_partners(const std::function<void(hand&)>& script);
void show_partners();

/// Clicks a cell, replaces its text and presses Enter.
void type_into(hand& user, int row, int column, const QString& text);

/// Closes the window by OK.
void accept_partners(hand& user);

// The message boxes of the window, in the current language.
expected_box refusal_of_missing_name();
expected_box question_on_removal(const QString& name);

}  // namespace verdane::testing
