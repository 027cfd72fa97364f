#pragma once

#include <QString>

#include <memory>
#include <vector>

#include "base/run_time_failure.h"
#include "store/lock_wait.h"
#include "store/recordset_settings.h"
#include "store/row_reader.h"

namespace verdane {

/// The rows of an open recordset and the position among them. The base class of `row_editor`, which changes
/// rows.
class row_cursor {
public:
    row_cursor(Connection1& connection, recordset_settings settings);

    const recordset_settings& settings() const { return settings_; }
    /// The statement that the next `open` runs.
    const QString& source() const { return source_; }
    void set_source(const QString& statement) { source_ = statement; }

    /// Runs the statement and moves to the first row. `read_first` has the columns that are read for every
    /// row; empty for all. Fails with `misuse` if the recordset is open or the connection is closed, and is
    /// closed after a failure.
    void open(row_reading reading, std::vector<int> read_first = {});
    bool is_open() const { return open_; }

    /// Reads the rows that `open` left unread, and fails with `misuse` on a closed recordset.
    void need_rows();
    /// The same for functions that need other rows than the current one.
    void need_all_rows();

    /// The number of rows in memory: all of them, or the current one if rows are read one by one.
    int count() const { return static_cast<int>(set_.rows.size()); }
    bool before_first() const { return count() == 0 || place_ < 0; }
    bool after_last() const { return count() == 0 || (place_ >= count() && !in_gap_); }
    /// The index of the current row, from 0; -1 if there is none.
    int position() const { return on_row() ? place_ : -1; }
    /// Fails with `misuse` if there is none.
    recordset_row& current();
    /// The row with an index, from 0. This and the next function fail with `misuse` if there is none.
    recordset_row& row_at(int index) const;
    void move_to_row(int index);

    /// Moves to an index, -1 and the number of rows included; a lower or higher one is limited to these.
    void move_to(int target);
    /// Moves forward by `steps` if it is positive, otherwise back.
    void move_by(int steps);
    bool reads_one_by_one() const { return stream_ != nullptr; }
    /// Replaces the current row by the next one. Only if rows are read one by one.
    void read_next();
    /// Moves to the first match from the current row on.
    void find(const QString& criterion, search_direction direction);

    /// A value of a row, which is read now if the row was not read completely.
    const QVariant& cell(recordset_row& row, int ordinal);
    /// These three fail with `missing_table` if the statement has no such column.
    const recordset_column& column(int ordinal) const;
    int checked_ordinal(int ordinal) const;
    int ordinal_of(QStringView name) const;

    [[noreturn]] void fail(failure_kind kind, const QString& what) const;
    /// Runs a conversion for a column; its failure then also names the recordset and the column.
    template <typename Work>
    auto located(int ordinal, Work work) const
    {
        try {
            return work();
        } catch (const run_time_failure& failure) {
            fail(failure.kind(), QString(column(ordinal).name + u": " + failure.details()));
        }
    }

protected:
    Connection1& connection() const { return connection_; }
    const row_set& set() const { return set_; }
    bool is_unread() const { return unread_; }
    void need_open() const;
    /// Null if there is no current row.
    recordset_row* current_or_null() const;
    /// Reads the columns that were not read first.
    void complete(recordset_row& row);

    /// Runs the statement again and moves to the first row. The old rows are kept after a failure.
    void read_again();
    /// Frees the rows. Fails with `misuse` on a closed recordset.
    void close_rows();

    /// Adds a row after the last one and moves to it.
    void append(std::unique_ptr<recordset_row> row);
    /// Removes an appended row and moves to `next`, or after the last row if `next` is not among the rows.
    void remove_appended(const recordset_row& row, const recordset_row* next);
    /// Removes the current row, which must exist, and returns it. No row is current until the next move.
    std::unique_ptr<recordset_row> take_current();

    /// Limits the wait for another program's lock while the result exists.
    [[nodiscard]] lock_wait::limit time_out() const;
    /// The name of the recordset and the statement, for failures.
    QString where() const;

private:
    bool on_row() const { return open_ && !in_gap_ && place_ >= 0 && place_ < count(); }
    void forget_rows();
    row_set read() const;
    void open_stream();
    void replace_row(row_stream& following);
    void complete_all();

    Connection1& connection_;
    const recordset_settings settings_;
    QString source_;
    bool open_ = false;
    /// True while the recordset is open and its rows have not been read.
    bool unread_ = false;
    std::vector<int> read_first_;
    row_set set_;
    /// The following rows if rows are read one by one; `set_` then has only the current row.
    std::unique_ptr<row_stream> stream_;
    /// The index of the current row; -1 before the first, the number of rows after the last. After a deletion
    /// (`in_gap_`) it is the index of the row that follows the deleted one, until the next move.
    int place_ = 0;
    bool in_gap_ = false;
};

}  // namespace verdane
