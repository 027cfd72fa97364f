#pragma once

#include <QMap>
#include <QStringList>

#include "tests/kills/told_hole.h"

namespace verdane::testing {

/// What a program says while it is being used, a line for each thing, so that it is known after its death
/// what it had done:
///
///     typed HOLE FIGURES   the boxes of the hole hold these, and it is about to be left
///     telling HOLE SHOTS   the hole is about to be told shot by shot, from an empty grid
///     told HOLE SHOT       that shot is told and the row behind it has come
///     left HOLE            the hole that was typed or told has been left
struct last_words {
    QMap<int, QString> typed;   ///< figures of the holes that were left on the quick page
    QMap<int, told_hole> told;  ///< the holes that were told and left

    int typing = 0;  ///< the hole that was being left on the quick page; 0 when there was none
    QString typing_figures;
    int telling = 0;  ///< the hole that was being told
    told_hole telling_shots;
    int shots_told = 0;

    int holes_left() const { return static_cast<int>(typed.size() + told.size()); }
};

void say_typed(int hole, const QString& figures);
void say_telling(int hole, const told_hole& shots);
void say_told(int hole, int shot);
void say_left(int hole);

/// True once the first hole is under way.
bool is_under_way(const QByteArray& said);

last_words understood(const QByteArray& said);

}  // namespace verdane::testing
