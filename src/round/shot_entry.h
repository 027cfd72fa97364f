#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

#include "records/round_rows.h"
#include "records/shot_row.h"
#include "round/shot_rows.h"
#include "scoring/hole_summary.h"

namespace verdane {

/// The hole on screen, as far as its shots depend on it.
struct hole_on_screen {
    /// The key of the round; empty before the tee-off.
    QString key;
    /// 1 to 18.
    int16 number = 0;
    Round_functions::hole_card card;
};

/// Shot-by-shot entry: what is done with the rows of a hole. `scoring/hole_shots.h` has the rules for the
/// figures. Nothing is shown here; the functions return what happened.
class shot_entry {
public:
    /// `hole` returns the hole on screen. The shots that are loaded can be those of another hole: on the
    /// quick page the hole changes without its shots.
    shot_entry(shot_rows& rows, std::function<hole_on_screen()> hole);

    hole_on_screen hole() const { return hole_(); }

    /// The shot that is being entered is a putt.
    bool PUT_MODE() const { return PUT_MODE_; }
    /// The hole that was summarised last has classified shots.
    bool isdetailed() const { return isdetailed_; }

    bool hole_is_loaded() const;

    /// Loads the shots of the hole on screen. A hole without shots gets a blank shot. If the shots cannot be
    /// opened, there are no rows afterwards.
    void load_hole();
    /// Adds the blank first shot of a hole that has no shots.
    void add_first_shot();

    /// Renumbers the shots of the loaded hole and completes distances and units. Returns the number of the
    /// first shot without club or kind, 0 when there is none. The current row is the last shot then, or the
    /// incomplete one. A failure of the store ends the check.
    int check_shots();

    /// Removes the current shot if it is the first one and lacks club or kind, and returns true. Otherwise
    /// stores the par in the first shot.
    bool drop_blank_shot();
    /// Sets `PUT_MODE` to true when the last shot is a putt, else to false.
    void set_put_mode_by_last_shot();

    /// Removes the blank shot of a new hole. The close box closes the window without complete shots, and a
    /// hole that was only displayed must not count as a detailed one.
    void drop_untouched_shot();

    /// Prepares the rows for the next shot and sets `PUT_MODE`. Returns the distance before that shot,
    /// nothing when the last shot lacks club, kind or distance. The hole has shots.
    std::optional<int16> prepare_next_shot();
    void add_shot(int16 distance);

    /// Counts the shots of the hole on screen, sets `isdetailed`, and writes the lengths of its putts into
    /// the current row of `rsgames2`, which is not committed. Nothing happens when the hole is not loaded.
    std::optional<hole_summary> summarise_hole();

    /// The names of the fourteen clubs. Names that were typed into the golf bag are used until the program
    /// ends, even if the user chose not to store them.
    static QStringList club_names();

private:
    /// A shot of the hole on screen.
    new_shot shot_of_hole(int number, int16 distance) const;
    /// The card of the hole whose shots are loaded.
    Round_functions::hole_card card_of_shots() const;

    shot_rows& rows_;
    std::function<hole_on_screen()> hole_;
    bool PUT_MODE_ = false;
    bool isdetailed_ = false;
};

}  // namespace verdane
