#pragma once

#include <QString>
#include <QStringView>
#include <QVariant>

#include <memory>
#include <vector>

#include "store/Field.h"
#include "store/recordset_settings.h"
#include "store/tables/columns.h"

namespace verdane {

class Connection1;
class row_editor;

/// The columns that `Open` reads of every row. The other columns of a row are read by one statement when one
/// of them is first needed, and then kept like the rest.
struct first_columns {
    /// At least one; each exists in the table.
    std::vector<int> ordinals;
};

/// Which rows a batch update writes. Both values commit everything that is pending.
enum class affect { all = 3, all_chapters = 4 };

/// The rows of one statement with a current row. Fields are reached by ordinal or name.
///
/// The rows of a plain `select ... from TABLE [where ...] [order by ...]` can be written: the hidden row
/// number of the engine is read with the columns and identifies the row. It has no ordinal. Joins and groups
/// are read-only.
///
/// With an optimistic lock, leaving a changed row commits it (any move, `Find`, `Requery`, another `AddNew`),
/// and `Update` commits it at once. With a batch-optimistic lock, changes stay pending until `UpdateBatch`,
/// which stores all of them or none. A commit that fails changes neither the store nor the row, which stays
/// pending. A commit writes the columns that changed, and nothing if none did.
///
/// Every failure is a `run_time_failure` with the statement and the name of the recordset.
class Recordset {
public:
    Recordset(Connection1& connection, recordset_settings settings);
    ~Recordset();
    Recordset(const Recordset&) = delete;
    Recordset& operator=(const Recordset&) = delete;

    const QString& name() const;
    const recordset_settings& settings() const;

    /// The statement that the next `Open` or `Requery` runs. It stays in force until the next call.
    const QString& Source() const;
    void set_Source(const QString& statement);

    /// Reads the rows. The first one is then current; without rows the recordset is at `eof()`. Fails with
    /// `misuse` if the recordset is open, and with `missing_table` (on a server `source_part`) if the store
    /// lacks the table; with `when_needed` the latter is left to the first function that needs a row.
    void Open(row_reading reading = row_reading::at_once);
    /// The same, for a table of which a few columns of every row are needed, and the others of a few rows. A
    /// row that was removed from the store before its other columns were read fails with `misuse` then. Reads
    /// all columns if the statement is not `select * from TABLE ...`, or if the table has no identity column.
    void Open(const first_columns& columns);
    /// Frees the rows and drops what is pending. Fails with `misuse` if the recordset is not open.
    void Close();
    bool is_open() const;
    /// Commits the current row (optimistic lock) and reads the rows again; the first one is then current.
    /// Does not read rows that were not read before.
    void Requery();

    bool bof() const;
    bool eof() const;
    /// True if there are no rows (`bof()` and `eof()`).
    bool empty() const;
    /// The number of rows, with pending new ones and without deleted ones.
    int RecordCount() const;
    /// The index of the current row, from 0; -1 if there is none.
    int position() const;

    /// `MoveFirst` and `MoveLast` fail with `misuse` on an empty recordset.
    void MoveFirst();
    void MoveLast();
    /// Moves from the last row to `eof()`, where it does nothing.
    void MoveNext();
    /// Moves from the first row to `bof()`, where it does nothing, and from `eof()` to the last row.
    void MovePrevious();
    /// Moves by `steps` from the current row, forward if positive, but not beyond `eof()` and `bof()`.
    void Move(int steps);
    /// Moves to the row with that index, from 0. Fails with `misuse` if there is none.
    void MoveTo(int row);

    /// Finds `column op value` (`=`, `>=`, `<=`, `>`, `<`, `<>`; the value quoted or not) from the current
    /// row on. After `MoveFirst` either direction finds a row that exists. If there is none, the recordset is
    /// at `eof()`.
    void Find(const QString& criterion, search_direction direction = search_direction::forward);

    /// The field of the current row with that ordinal, from 0, or name, in any case. Fails with
    /// `missing_table` if the statement has no such column.
    Field Fields(int ordinal);
    Field Fields(QStringView name);
    /// The column's declared type; `any` for a column that the statement computed or joined. Fails like
    /// `Fields`.
    column_type field_type(int ordinal) const;

    /// A value of the row with that index, from 0. The current row does not change. Null is an invalid value.
    QVariant value_at(int row, int ordinal) const;

    /// Adds a row with the defaults of the columns and makes it current. It is stored by its commit.
    void AddNew();
    /// Commits the current row. With a batch-optimistic lock it stays pending. Does nothing if nothing is
    /// pending.
    void Update();
    /// Commits every pending row. Does nothing if nothing is pending.
    void UpdateBatch(affect rows = affect::all);
    /// Drops what is pending on the current row. A new row is removed; the row from which it was added is
    /// then current, or the recordset is at `eof()`.
    void CancelUpdate();
    /// Removes the current row (at once with an optimistic lock, at `UpdateBatch` otherwise). No row is
    /// current until the next move, which moves to the row before or after the removed one. Without rows
    /// `bof()` and `eof()` are true. Fails with `misuse` if there is no current row.
    void Delete();

    /// True if the current row, or with a batch lock any row, has changes that are not committed.
    bool pending() const;

private:
    std::unique_ptr<row_editor> rows_;
};

/// Closes a recordset that an earlier handler may have left open after a failure. What is pending is dropped.
void close_if_open(Recordset& recordset);

}  // namespace verdane
