#pragma once

#include <QString>
#include <QStringView>

#include <initializer_list>

#include "base/counts.h"

/// What one hole counts. Everything here is pure: figures and a par in, a count out. A sum beyond 16
/// bits fails with `overflow`.
namespace verdane {

/// The counts of one hole, all in strokes.
struct hole_figures {
    int16 long_shots = 0;
    int16 approach = 0;
    int16 putts = 0;
    int16 pen_rule = 0;
    int16 pen_water = 0;
    int16 pen_bounds = 0;
    int16 pen_lost = 0;
};

/// Long and approach shots added: the strokes that are neither putts nor penalties.
int16 hole_shots(const hole_figures& f);

/// The four penalties added.
int16 hole_penalties(const hole_figures& f);

/// Strokes of the hole: penalties, long shots, approach shots and putts.
int16 hole_gross(const hole_figures& f);

/// 1 when long shots, penalties and approach shots make exactly par less 2, else 0. A green reached
/// sooner is not in regulation, and penalty strokes count as strokes to the green.
int in_regulation(const hole_figures& f, int16 par);

/// True when the hole was played (its gross is not 0) and is not in regulation.
bool not_in_regulation(const hole_figures& f, int16 par);

/// The text of a box as a count: its leading number, rounded to the nearest whole number (ties to even); 0
/// for an empty box. Fails with `overflow` outside 16 bits.
int16 figure_of_box(QStringView text);

/// The sum of the leading numbers of several boxes, as decimals, in the text form of a box of totals.
QString sum_of_boxes(std::initializer_list<QString> texts);

}  // namespace verdane
