#pragma once

#include <QRandomGenerator>
#include <QString>

#include "tests/support/hand.h"
#include "tests/support/reader.h"

namespace verdane::testing {

/// Someone who presses keys and clicks controls of the round window at random, and answers whatever box
/// comes up at random. Whenever a hole comes on the quick page, its boxes must show what is stored, and
/// what the boxes of the hole before showed must have been stored.
class walker {
public:
    walker(hand& user, const reader& store, quint32 seed);

    void walk(int steps);
    /// Out of every window, whatever it asks, back to the main window.
    void go_home();

    int holes_compared() const { return holes_compared_; }
    int boxes_answered() const { return boxes_answered_; }

private:
    void step();
    void answer_box();
    void step_in_round_window();
    void step_on_quick_page();
    void step_on_detailed_page();
    void press_some_key();
    void click_if_there(const QString& control);
    void change_hole();
    void type_distance();
    void choose_from_menu();
    void remove_a_shot();
    void compare_hole(const QString& shown, int hole);
    void keep_room_for_keys();

    int one_of(int count) { return static_cast<int>(random_.bounded(count)); }
    bool on_quick_page();
    int hole_shown();
    /// The eleven boxes of the hole on screen, as numbers.
    QString boxes();
    QString stored_hole(int hole);
    QString window_at_work();

    hand& user_;
    const reader& store_;
    QRandomGenerator random_;
    int holes_compared_ = 0;
    int boxes_answered_ = 0;
};

}  // namespace verdane::testing
