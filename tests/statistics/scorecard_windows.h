#pragma once

#include <QString>
#include <QVariant>

#include <functional>
#include <vector>

#include "tests/support/hand.h"
#include "tests/support/stored_diary.h"

/// What the tests of the scorecard share.
namespace verdane::testing {

using namespace Qt::StringLiterals;

inline const QString preview = u"report_preview"_s;

/// "Pebble Beach" from the golden tee.
diary_course pebble();

/// A store with a course from two tees and another one, and averages of the clubs.
class stocked_store : public stored_diary {
public:
    explicit stocked_store(bool french = true);

    /// A row of `r_card`, counted from 1, by ordinal.
    std::vector<QVariant> card(int row) const;
};

/// "f_carte", or its twin in the current language.
QString scorecard_window();

/// Opens the scorecard window, runs the script and leaves through the cancel button.
void in_scorecard_window(const std::function<void(hand&)>& script);

/// Chooses a course by its line (from 0) and presses OK.
void print_card(hand& user, int course);
/// Waits until the scorecard's report is open, compares how it was launched and closes it.
void close_card(hand& user);

}  // namespace verdane::testing
