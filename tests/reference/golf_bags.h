#pragma once

#include <QMessageBox>
#include <QString>

#include <functional>

#include "tests/support/hand.h"
#include "tests/support/stored_diary.h"

/// Support for the tests of the golf bag.
namespace verdane::testing {

/// The name of the window in the current language.
QString bag_window();

/// A store with a golf bag and three rounds on days 1 to 3, each with shots.
class filled_bag : public stored_diary {
public:
    explicit filled_bag(bool french = true);

    /// Adds a shot; `lengths` are those before and after it in yards, "400, 150".
    void shot(int day, int club, const QString& lengths) const;

    /// The stored figures and name of a club (1 to 14).
    double average(int club) const;
    int shots(int club) const;
    QString name(int club) const;
};

/// Opens the golf bag and runs the script, which closes it.
void in_bag(const std::function<void(hand&)>& script);

/// Answers the question whether names and averages are to be stored.
void answer_keep(hand& user, QMessageBox::StandardButton answer);

/// Computes the averages from a range of rounds, given by the lines of the two lists (from 0).
void compute(hand& user, int from, int to);

}  // namespace verdane::testing
