#pragma once

#include <QString>
#include <QStringView>

#include "base/counts.h"

/// What a choice from a menu, or a typed distance, writes into the current row of `rsStat_rounds`. Menu
/// entries count from 1. The words are those of the current language of the interface.
namespace verdane::current_shot {

/// True when the shot has its club and its kind.
bool is_complete();

/// The putter makes the shot a putt, in feet. Another club makes a putt a shot without kind; a shot in feet
/// stays in feet.
void set_club(int club, const QString& name);
void set_kind(int kind);
/// Kind, club and unit of a putt.
void make_putt();
void set_position(int entry);
/// The shot has no position.
void clear_position();
void set_penalty(int entry);
void set_yes_or_no(QStringView column, bool yes);
void set_par(int16 par);

/// The distance was changed: sets the unit, and the kind of a shot with the putter. Returns true when that
/// shot is the last one of the hole. Looking for a next row commits the row; a failure of that is ignored.
bool distance_changed();

}  // namespace verdane::current_shot
