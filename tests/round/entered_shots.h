#pragma once

#include <QString>
#include <QStringList>

#include "tests/round/round_windows.h"
#include "tests/support/hand.h"

/// Support for the tests of the detailed page.
namespace verdane::testing {

using namespace Qt::StringLiterals;

inline const QString details = u"details"_s;
inline const QString hole_tabs = u"TabStrip1"_s;
inline const QString ok_button = u"Command1_4"_s;
inline const QString cancel_button = u"Command1_2"_s;

/// Stores the club names: "D" for club 1, "F2" to "F12", "SW", and "Pu" for the putter.
void name_the_clubs(const round_store& store);

/// Clicks the tab of the detailed page and checks that its grid is visible.
void open_detailed_page(hand& user);
void open_quick_page(hand& user);

/// The stored shots of a hole, a line for each: "1 101>60 Verges D/1 Long/1" is shot 1, from 101 to 60 yards.
/// Marks follow if they are set: " fairway=2", " penalty=1+1" (code and strokes), " missed", " sand",
/// " zero", " beyond", " cal".
QString stored_shots(const round_store& store, int hole);

/// Adds a row to `Stat_rounds`. `values` are further columns: "COLUMN=VALUE, ...".
void add_shot(const round_store& store, int hole, int shot, const QString& values);
/// Adds a complete shot to the store: club, remaining distance, unit, kind (1 to 3).
void add_complete_shot(const round_store& store, int hole, int shot, int club, int after, const QString& unit,
                       int kind);

/// Enters a shot in a row of the grid with the mouse: club (1 to 14), remaining distance and kind. An empty
/// distance and the kind 0 are not entered.
void enter_shot(hand& user, int row, int club, const QString& distance, int kind);

/// The stored figures of a hole: long, approach, putts, fairway, sand, missed, recovery, water,
/// lost, rule, bounds.
QString stored_figures(const round_store& store, int hole);
/// The six stored lengths of a hole's putts.
QString stored_putts(const round_store& store, int hole);

/// A store with two courses and named clubs.
struct golfer_store {
    explicit golfer_store(bool french = true);
    int shots(int hole) const;

    round_store store;
};

/// Enters a drive, an approach and the first putt of the current hole; the second putt has no distance yet.
void enter_hole(hand& user);
/// The figures and putts of that hole.
inline const QString entered_figures = u"1 1 2 2 0 0 0 0 0 0 0"_s;
inline const QString entered_putts = u"30 4 0 0 0 0"_s;

/// Enters a first shot and a second one without a kind.
void enter_incomplete_second_shot(hand& user);

/// The refusal of an incomplete shot; `suffix` is a blank and its number, or nothing.
expected_box refusal_of_shot(const QString& suffix = {});
/// Saves a picture of the window in the folder of the variable VERDANE_PICTURES, if it is set.
void keep_picture(hand& user, const QString& name);

}  // namespace verdane::testing
