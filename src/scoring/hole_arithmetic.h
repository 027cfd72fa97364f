#pragma once

#include <QString>
#include <QStringView>

#include <initializer_list>

#include "base/counts.h"

/// The counts of one hole. Pure functions; a sum that exceeds 16 bits fails with `overflow`.
namespace verdane {

struct stroke_counts {
    int16 long_shots = 0;
    int16 approach = 0;
    int16 putts = 0;
};

/// Penalties, one stroke each.
struct penalty_counts {
    int16 pen_rule = 0;
    int16 pen_water = 0;
    int16 pen_bounds = 0;
    int16 pen_lost = 0;
};

/// The counts that add up to the gross of a hole.
struct hole_figures : stroke_counts, penalty_counts {};

/// Shots in the fairway, in sand, missed ones and recovery shots. They are also counted as strokes, so they
/// do not change the gross.
struct situation_counts {
    int16 fairway = 0;
    int16 sand = 0;
    int16 missed = 0;
    int16 recovery = 0;
};

/// Everything that is counted on a hole: the eleven boxes of quick entry.
struct hole_counts : hole_figures, situation_counts {};

/// Long and approach shots added: the strokes that are neither putts nor penalties.
int16 hole_shots(const hole_figures& f);

/// The four penalties added.
int16 hole_penalties(const hole_figures& f);

/// Strokes of the hole: penalties, long shots, approach shots and putts.
int16 hole_gross(const hole_figures& f);

/// 1 if long shots, approach shots and penalties add up to exactly par - 2, else 0. A green reached with
/// fewer strokes is not in regulation, and a penalty counts as a stroke to the green.
int in_regulation(const hole_figures& f, int16 par);

/// True if the hole was played (its gross is not 0) and its green was not reached in regulation.
bool not_in_regulation(const hole_figures& f, int16 par);

/// The text of a box as a count: its leading number, rounded to the nearest whole number (ties to even); 0
/// for an empty box. Fails with `overflow` outside 16 bits.
int16 figure_of_box(QStringView text);

/// The sum of the leading numbers of several boxes, as decimals, in the text form of a box of totals.
QString sum_of_boxes(std::initializer_list<QString> texts);

}  // namespace verdane
