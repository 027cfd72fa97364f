#pragma once

#include <QString>

#include <optional>
#include <span>
#include <vector>

#include "base/counts.h"
#include "records/shot_row.h"
#include "store/scoped_source.h"

namespace verdane {

struct bound_column;
class recordset_model;

/// The shots of one hole in the rows of `rsStat_rounds`, and which hole that is. With no hole loaded the
/// recordset covers the whole table, which is read only when a row is needed.
///
/// An object exists as long as a round window. In that time only this class and the model of the grid use
/// `rsStat_rounds`; afterwards its statement is "select * from stat_rounds".
class shot_rows {
public:
    /// Closes the recordset if an earlier round left it open because of a failure. What that round could not
    /// store is dropped.
    shot_rows();

    /// A model of the rows for a grid. The caller owns it; it must not outlive the store.
    recordset_model* make_model(std::vector<bound_column> columns);

    /// Opens the shots of a hole (1 to 18) of a round. Fails as `Recordset::Open` does.
    void open_hole(const QString& key, int16 hole);
    /// Commits and closes what is open, then opens the shots of another hole. Each step is executed even
    /// if the one before it failed. If the shots cannot be opened, the recordset is closed afterwards.
    void change_hole(const QString& key, int16 hole);
    /// Opens the recordset again on the same statement. Pending changes are dropped.
    void reopen();
    /// Commits the current row. Does nothing when the recordset is closed.
    void commit();
    /// Commits every row.
    void commit_all();
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
    /// The number of the hole that is loaded. Requires a loaded hole.
    int16 hole() const { return loaded_->number; }

    /// The number of shots.
    int count() const;
    bool empty() const { return count() == 0; }
    /// True when the last shot is a putt. False without shots.
    bool last_is_putt() const;
    /// True when the hole has only the blank shot of a new hole, without club, kind and distance.
    bool only_blank_shot() const;

    /// True when there is a current row.
    bool on_a_row() const;
    /// True when the current row is the first one.
    bool on_first_row() const;
    /// The current row.
    shot_row current() { return shot_row(rows_); }
    /// Makes the row at a place, from 0, the current one. The row that is left is committed.
    void move_to(int place);
    void move_to_last();
    /// True when the current row is the last one. Looking for a next row commits the row; a failure of that
    /// is ignored, and the result is false.
    bool on_last_row();

    /// Adds the first shot of a hole, commits it and reads the rows again. It is the current row afterwards.
    void add_first(const new_shot& shot);
    /// Adds a shot after the last one, which is the current row afterwards. It is not committed.
    void add(const new_shot& shot);
    /// Removes the current row at once. The first one is current afterwards.
    void remove_current();

    /// All rows, in order. The current row does not change.
    shot_list read();
    /// Writes what differs from the first rows, one for each shot, and commits it. The current row does not
    /// change.
    void write(std::span<const hole_shot> shots);

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

}  // namespace verdane
