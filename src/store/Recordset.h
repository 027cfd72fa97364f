#pragma once

#include <QString>
#include <QStringView>
#include <QVariant>

#include <memory>

#include "base/counts.h"
#include "store/recordset_settings.h"
#include "store/tables/columns.h"

namespace verdane {

class Connection1;
class Recordset;

/// When the rows of a statement are read.
enum class row_reading {
    /// As it is opened.
    at_once,
    /// All of them, once something asks for one. For a whole table that is open in case it is needed; what
    /// is wrong with the statement comes out at that moment too.
    when_needed,
    /// Each as the walk comes to it, the one before let go: for a statement over the whole diary, whose rows
    /// in memory at once would be many times what is asked of them. They can only be read, and `MoveNext` is
    /// the only way; what needs the other rows (any other move, counting, finding, `bof`, `empty`,
    /// `Requery`) fails with `misuse`.
    one_by_one
};
enum class search_direction { forward = 1, backward = -1 };

/// Which rows a batch update writes. Both commit everything that is pending.
enum class affect { all = 3, all_chapters = 4 };

/// One field of a recordset's current row. Reading it at `eof()`, or on a row that was deleted,
/// fails with `misuse`.
class Field {
public:
    QVariant value() const;
    bool is_null() const;

    /// The value as text, as it stands (no trimming). Null fails with `invalid_null`.
    QString text() const;
    /// The same, with Null read as the empty text.
    QString text_or_empty() const;
    /// The value trimmed of blanks, with Null read as the empty text.
    QString trimmed() const;

    /// The value as a count. Null fails with `invalid_null`, a value outside 16 bits with `overflow`.
    int16 to_int16() const;
    /// The same, with Null or an empty text read as 0.
    int16 int16_or_zero() const;
    int32 to_int32() const;
    int32 int32_or_zero() const;
    /// The leading number of the value. Null fails with `invalid_null`.
    double to_double() const;
    double double_or_zero() const;
    /// A yes/no value; Null is no.
    bool yes() const;

    /// Writes the field of the current row, converted to the column's type. The row is then pending
    /// until it is committed or dropped. Fails on a read-only recordset (`misuse`).
    void set(const QVariant& value);
    void set(int16 value);
    void set(int32 value);
    void set(const QString& value) { set(QVariant(value)); }
    void set(int value) { set(QVariant(value)); }
    void set(double value) { set(QVariant(value)); }
    void set(bool value) { set(QVariant(value)); }
    void set_null() { set(QVariant()); }

    /// The place of the column, from 0.
    int ordinal() const { return ordinal_; }

private:
    friend class Recordset;
    Field(Recordset& owner, int ordinal) : owner_(owner), ordinal_(ordinal) {}
    const QVariant& cell() const;
    const QVariant& cell_with_value() const;
    Recordset& owner_;
    int ordinal_;
};

/// Rows of one statement, walked by position; fields are reached by ordinal or name.
///
/// A plain `select ... from TABLE [where ...] [order by ...]` is updatable: the row's identity is the
/// engine's own hidden row number, fetched beside the columns and never counted among them. Joins
/// and groups are read-only.
///
/// With an optimistic lock, leaving a changed row commits it (any move, `Find`, `Requery`, another
/// `AddNew`), and `Update` commits it now. With a batch-optimistic lock, changes stay pending until
/// `UpdateBatch`, which stores all of them or none. A commit that fails leaves the store and the row
/// as they were, the row still pending. A commit writes the columns that changed, and writes nothing when
/// none did.
///
/// Every failure is a `run_time_failure` that carries the statement and the recordset's name.
class Recordset {
public:
    Recordset(Connection1& connection, recordset_settings settings);
    ~Recordset();
    Recordset(const Recordset&) = delete;
    Recordset& operator=(const Recordset&) = delete;

    const QString& name() const;
    const recordset_settings& settings() const;

    /// The statement for the next reading of rows, by `Open` or `Requery`; stays in force until the next
    /// write.
    const QString& Source() const;
    void set_Source(const QString& statement);

    /// Reads the rows and stands on the first, or at `eof()` when there is none. Fails with `misuse`
    /// when the recordset is open, with `missing_table` when the store lacks the table. With `when_needed`
    /// it does neither yet: both come with the first row that is asked for.
    void Open(row_reading reading = row_reading::at_once);
    /// Lets go of the rows; what is pending is dropped. Fails with `misuse` when it is not open.
    void Close();
    bool is_open() const;
    /// Commits the current row (optimistic lock), reads the rows again and stands on the first. Rows that
    /// were not read yet stay so.
    void Requery();

    bool bof() const;
    bool eof() const;
    /// No rows at all (`bof()` and `eof()`).
    bool empty() const;
    /// Rows that are there now, pending new ones included, deleted ones not.
    int RecordCount() const;
    /// Place of the current row, from 0; -1 when there is none.
    int position() const;

    /// `MoveFirst` and `MoveLast` fail with `misuse` on an empty recordset.
    void MoveFirst();
    void MoveLast();
    /// At `eof()` this does nothing, at the last row it leads to `eof()`.
    void MoveNext();
    /// At `bof()` this does nothing, at the first row it leads to `bof()`; from `eof()` it leads to
    /// the last row.
    void MovePrevious();
    /// Moves by `steps` from the current row, forward when positive; past either end it stands at
    /// `eof()` or `bof()`.
    void Move(int steps);
    /// Stands on the row at a place from 0, as `position` counts. Fails with `misuse` when there is none.
    void MoveTo(int row);

    /// Looks for `column op value` (`=`, `>=`, `<=`, `>`, `<`, `<>`; the value quoted or not) from
    /// the current row on. Either direction finds a row that exists after `MoveFirst`. Not found is
    /// `eof()`. On an empty recordset it stays at `eof()`.
    void Find(const QString& criterion, search_direction direction = search_direction::forward);

    /// The field at a place (from 0) or of a name (capitals or not) of the current row. Fails with
    /// `missing_table` when the statement has no such column.
    Field Fields(int ordinal);
    Field Fields(QStringView name);
    int field_count() const;
    QString field_name(int ordinal) const;
    /// The column's declared type; `any` for what the statement computed or joined.
    column_type field_type(int ordinal) const;

    /// A value of any row, by place from 0, without leaving the current row: for grids that paint
    /// rows they do not stand on. Null is an invalid value.
    QVariant value_at(int row, int ordinal) const;

    /// Adds a row with the columns' defaults and stands on it. It reaches the store at its commit.
    void AddNew();
    /// Commits the current row. With a batch-optimistic lock it only marks the row as edited. Does
    /// nothing when nothing is pending.
    void Update();
    /// Commits every pending row; does nothing when nothing is pending.
    void UpdateBatch(affect rows = affect::all);
    /// Drops what is pending on the current row; a new row goes away, and the recordset then stands
    /// on the row it came from or at `eof()`.
    void CancelUpdate();
    /// Removes the current row (at once with an optimistic lock, at `UpdateBatch` otherwise). The
    /// position stays in the gap until the next move; when no row remains, `bof()` and `eof()` hold.
    /// Fails with `misuse` when there is no current row.
    void Delete();

    /// True when the current row, or with a batch lock any row, waits for its commit.
    bool pending() const;
    /// Drops everything that is pending, without a word; used when the program ends after a failure.
    void drop_pending();

private:
    friend class Field;
    struct rows;
    std::unique_ptr<rows> rows_;
};

}  // namespace verdane
