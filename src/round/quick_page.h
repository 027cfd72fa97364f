#pragma once

#include <QWidget>

#include <vector>

#include "records/round_rows.h"
#include "scoring/hole_arithmetic.h"

class QLineEdit;

namespace verdane {

class Form;

/// Quick entry: a hole in eleven boxes. A typed digit replaces the figure of its box and moves the focus to
/// the next box. Every change of a box is reported, also one by the program.
class quick_page : public QWidget {
    Q_OBJECT

public:
    explicit quick_page(const Form& window);

    /// Shows the counts of a stored hole: strokes, penalties, then the situation. Each change is reported
    /// before the next box is set.
    void show_stored(const hole_counts& counts);
    /// Shows what was counted from shots: penalties, situation, then strokes. The strokes are last because a
    /// change of them is reported, and all penalties must be set by then.
    void show_counted(const hole_counts& counts);

    /// Strokes and penalties; an empty box is 0. Fails with `overflow` beyond 16 bits.
    hole_figures figures() const;
    /// The texts of the four boxes of the situation.
    Round_functions::situation_texts situation() const;

    void focus_first_box();
    /// Selects the figure of the first box, so that the next digit replaces it.
    void select_first_box();

    /// The boxes in the order of the Tab key, which is that of the digits.
    std::vector<QWidget*> tab_order() const;

Q_SIGNALS:
    /// A box has changed.
    void figure_changed();
    /// A stroke box has changed. Emitted after `figure_changed`.
    void strokes_changed();
    /// A digit was typed into the last box.
    void last_figure_typed();

private:
    template <typename Counts>
    struct count_box {
        int16 Counts::*count;
        QLineEdit* box;
    };
    /// The boxes of a frame, from top to bottom.
    template <typename Counts>
    using box_group = std::vector<count_box<Counts>>;

    template <typename Counts>
    static void show(const box_group<Counts>& boxes, const Counts& counts);
    template <typename Counts>
    static Counts read(const box_group<Counts>& boxes);

    std::vector<QLineEdit*> boxes_in_order() const;
    void watch_keys();
    void watch_changes();
    void sum_stroke_boxes();
    void sum_penalty_boxes();

    box_group<stroke_counts> stroke_boxes_;
    box_group<situation_counts> situation_boxes_;
    box_group<penalty_counts> penalty_boxes_;
    QLineEdit* stroke_total_box_;
    QLineEdit* penalty_total_box_;
};

}  // namespace verdane
