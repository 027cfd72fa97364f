#pragma once

#include <QMap>
#include <QStringList>

#include "tests/kills/entered_hole.h"

namespace verdane::testing {

/// The output of a program until it was killed, one line for each step:
///
///     typed HOLE FIGURES    the boxes of the hole contain these figures; the next step leaves the hole
///     entering HOLE SHOTS   these shots of the hole will be entered into the empty grid
///     entered HOLE SHOT     this shot is entered and the next row is there
///     left HOLE             the hole that was typed or entered is left
struct run_log {
    QMap<int, QString> typed;         ///< figures of the holes that were left on the quick page
    QMap<int, entered_hole> entered;  ///< shots of the holes that were left on the detailed page

    int typing = 0;  ///< the hole that was not left yet on the quick page; 0 for none
    QString typing_figures;
    int entering = 0;  ///< the hole that was not left yet on the detailed page; 0 for none
    entered_hole entering_shots;
    int shots_entered = 0;

    int holes_left() const { return static_cast<int>(typed.size() + entered.size()); }
};

void log_typed(int hole, const QString& figures);
void log_entering(int hole, const entered_hole& shots);
void log_entered(int hole, int shot);
void log_left(int hole);

/// Whether the output has a line for the first hole.
bool is_under_way(const QByteArray& output);

run_log read_log(const QByteArray& output);

}  // namespace verdane::testing
