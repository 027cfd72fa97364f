#pragma once

#include <QString>
#include <QStringView>

#include <functional>
#include <optional>

#include "base/counts.h"
#include "scoring/hole_shots.h"
#include "store/scoped_source.h"

namespace verdane {

/// The shots of one hole in the rows of `rsStat_rounds`, and which hole that is. With no hole loaded the
/// recordset covers the whole table, which is read only when a row is needed.
///
/// An object exists as long as a round window. In that time only this class opens, commits and closes
/// `rsStat_rounds` and sets its statement; afterwards the statement is "select * from stat_rounds".
class shot_rows {
public:
    /// Closes the recordset if an earlier round left it open because of a failure. What that round could not
    /// store is dropped.
    shot_rows();

    /// Opens the shots of a hole (1 to 18) of a round. Fails as `Recordset::Open` does.
    void open_hole(const QString& key, int16 hole);
    /// Commits and closes what is open, then opens the shots of another hole. Each step is executed even
    /// if the one before it failed. If the shots cannot be opened, the recordset is closed afterwards.
    void change_hole(const QString& key, int16 hole);
    /// Opens the recordset again on the same statement. Pending changes are dropped.
    void reopen();
    /// Commits the new first shot of a hole and reads the rows again. The first one is current afterwards.
    void commit_first_shot();
    /// Commits the current row. Does nothing when the recordset is closed.
    void commit();
    /// Commits every row.
    void commit_all();
    /// Removes the current row at once. The first one is current afterwards.
    void remove_current();
    /// Drops what is pending on the current row. Ignores a failure: the recordset can be closed.
    void drop_changes();
    /// Commits and closes; no hole is loaded afterwards. Fails as `Recordset::Update` does, and then leaves
    /// everything as it is.
    void close();

    bool is_open() const;
    /// True when the shots of some hole are open.
    bool has_hole() const;
    /// True when the shots of that hole are open.
    bool has_hole(const QString& key, int16 hole) const;
    /// True when there is a current row.
    bool on_a_row() const;

    /// All rows, in order. The current row does not change.
    shot_list read() const;
    /// Writes what differs from the rows and commits it. The current row does not change. `shots` has one
    /// entry for each row. `written` gets the place of each row, from 0, before the row is committed.
    void write(const shot_list& shots, const std::function<void(int)>& written = {});

private:
    struct loaded_hole {
        QString key;
        int16 number;
    };

    void set_hole(const QString& key, int16 hole);

    Recordset& rows_;
    scoped_source statement_;
    std::optional<loaded_hole> loaded_;
};

/// The statement that reads the shots of a hole (1 to 18).
QString statement_of_hole(const QString& key, int16 hole);

/// What a choice from a menu, or a typed distance, writes into the current row of `rsStat_rounds`. Menu
/// entries count from 1. The words are those of the current language of the interface.
namespace current_shot {

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

}  // namespace current_shot

}  // namespace verdane
