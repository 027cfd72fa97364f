#pragma once

#include <QString>
#include <QStringList>

#include "tests/round/round_windows.h"
#include "tests/support/hand.h"

/// What the tests of the detailed page share.
namespace verdane::testing {

using namespace Qt::StringLiterals;

inline const QString details = u"details"_s;
inline const QString hole_tabs = u"TabStrip1"_s;
inline const QString ok_button = u"Command1_4"_s;
inline const QString cancel_button = u"Command1_2"_s;

/// "D" for club 1, "F2" to "F12", "SW", and "Pu" for the putter.
void name_the_clubs(const round_store& store);

/// Clicks the tab of the detailed page and waits for its grid.
void go_to_detailed_page(hand& user);
void go_to_quick_page(hand& user);

/// One shot as it stands in the store: "1 101>60 Verges D/1 Long/1" is shot 1, from 101 to 60 yards.
/// Marks follow where they are set: " fairway=2", " penalty=1+1" (code and strokes), " missed", " sand",
/// " zero", " beyond", " cal".
QString stored_shots(const round_store& store, int hole);

/// Puts a told shot into the store. `values` are "COLUMN=VALUE, ..." beside key, hole and number.
void add_shot(const round_store& store, int hole, int shot, const QString& values);
/// A complete shot: club, distance left, unit, kind (1 to 3).
void add_told_shot(const round_store& store, int hole, int shot, int club, int after, const QString& unit,
                   int kind);

/// Tells the shot of the cursor's row with the mouse: club (1 to 14), distance and kind; 0 leaves the
/// kind as it is.
void tell_shot(hand& user, int row, int club, const QString& distance, int kind);

/// The figures of a hole in the store: long, approach, putts, fairway, sand, missed, recovery, water,
/// lost, rule, bounds.
QString stored_figures(const round_store& store, int hole);
/// The six lengths of a hole's putts in the store.
QString stored_putts(const round_store& store, int hole);

/// A store with two courses and named clubs.
struct golfer_store {
    explicit golfer_store(bool french = true);
    int shots(int hole) const;

    round_store store;
};

/// Drive, approach and the first putt of the hole on the page; the second putt is open.
void tell_hole(hand& user);
/// What that hole comes to.
inline const QString told_hole = u"1 1 2 2 0 0 0 0 0 0 0"_s;
inline const QString told_putts = u"30 4 0 0 0 0"_s;

/// Tells a first shot and a second one that lacks its kind.
void leave_second_shot_open(hand& user);

expected_box refusal_of_shot(const QString& behind = {});
void keep_picture(hand& user, const QString& name);

}  // namespace verdane::testing
