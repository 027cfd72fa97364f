#pragma once

#include <QRandomGenerator>
#include <QString>

#include "tests/support/hand.h"
#include "tests/support/reader.h"

namespace verdane::testing {

/// Presses random keys, clicks random controls of the round window and random buttons of message boxes.
/// Whenever the quick page shows another hole, the boxes must show the stored figures, and the figures of the
/// previous hole must have been stored.
class walker {
public:
    walker(hand& user, const reader& store, quint32 seed);

    void walk(int steps);
    /// Closes windows and message boxes until only the main window is open.
    void close_all_windows();

    int holes_compared() const { return holes_compared_; }
    int boxes_answered() const { return boxes_answered_; }

private:
    void step();
    void answer_box();
    void step_in_round_window();
    void step_on_quick_page();
    void step_on_detailed_page();
    void press_some_key();
    void click_if_enabled(const QString& control);
    void change_hole();
    void type_distance();
    void choose_from_menu();
    void remove_a_shot();
    void compare_hole(const QString& shown, int hole);
    void reset_round_keys();

    int one_of(int count) { return static_cast<int>(random_.bounded(count)); }
    bool on_quick_page();
    int shown_hole();
    /// The eleven boxes of the shown hole, as numbers.
    QString boxes();
    QString stored_hole(int hole);
    QString window_on_top();

    hand& user_;
    const reader& store_;
    QRandomGenerator random_;
    int holes_compared_ = 0;
    int boxes_answered_ = 0;
};

}  // namespace verdane::testing
