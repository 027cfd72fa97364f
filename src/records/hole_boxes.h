#pragma once

#include <QString>
#include <QStringView>

#include <initializer_list>

#include "scoring/hole_arithmetic.h"

/// The other source of a hole's figures: the boxes of the open round window, which are not stored yet.
namespace verdane {

/// What the round window hands out to the scoring. It registers itself while it is open.
class hole_boxes {
public:
    virtual ~hole_boxes() = default;

    /// The figures of the hole on screen, each box read with `figure_of_box`.
    virtual hole_figures figures() const = 0;
};

/// Names the boxes that the scoring reads; null when the window closes.
void set_hole_boxes(const hole_boxes* boxes);

/// The figures in the boxes. Fails with `misuse` when no round window is open.
hole_figures figures_from_boxes();

/// A box's text as a count: its leading number, to the nearest whole number (ties to even); an empty
/// box is 0. Fails with `overflow` outside 16 bits.
int16 figure_of_box(QStringView text);

/// The leading numbers of several boxes, added as decimals, as text: what the boxes of totals show.
QString sum_of_boxes(std::initializer_list<QString> texts);

}  // namespace verdane
