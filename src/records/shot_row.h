#pragma once

#include <QString>

#include "base/counts.h"
#include "scoring/hole_shots.h"
#include "store/Recordset.h"

namespace verdane {

/// The values of a new shot.
struct new_shot {
    /// The key of the round.
    QString key;
    /// 1 to 18.
    int16 hole = 0;
    /// The number of the shot, from 1.
    int number = 0;
    /// The distance before the shot.
    int16 distance = 0;
    /// The length of the hole.
    int16 yards = 0;
};

/// A shot in the current row of a recordset of `Stat_rounds`. Nothing is committed. The words are those of
/// the current language of the interface. Menu entries count from 1.
class shot_row {
public:
    /// `shots` is open and must outlive the object.
    explicit shot_row(Recordset& shots) : shots_(shots) {}

    hole_shot read() const;
    /// Writes the values that differ from those of the row.
    void write(const hole_shot& shot);
    /// Writes a shot in the fairway, without a penalty, into a new row.
    void start(const new_shot& shot);

    /// True when the shot has its club and its kind.
    bool is_complete() const;

    /// The putter makes the shot a putt, in feet. Another club makes a putt a shot without kind; a shot in
    /// feet stays in feet.
    void set_club(int club, const QString& name);
    void set_kind(int kind);
    /// Kind, club and unit of a putt.
    void make_putt();
    void set_position(int entry);
    /// The shot has no position.
    void clear_position();
    void set_penalty(int entry);
    /// `ordinal` is that of a yes/no column.
    void set_yes_or_no(int ordinal, bool yes);
    void set_par(int16 par);
    /// The distance was changed: sets the unit, and the kind of a shot with the putter. True for that shot.
    bool distance_changed();

private:
    Field field(int ordinal) const { return shots_.Fields(ordinal); }
    void write_kind(int value, const QString& caption);
    void write_figure(int ordinal, const std::optional<int16>& value, const std::optional<int16>& stored);
    void write_text(int ordinal, const QString& value, const QString& stored);

    Recordset& shots_;
};

}  // namespace verdane
