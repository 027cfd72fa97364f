#pragma once

#include <QString>

#include <memory>

#include "base/run_time_failure.h"
#include "store/lock_wait.h"
#include "store/Recordset.h"
#include "store/row_reader.h"

namespace verdane {

/// The rows of an open recordset and the position among them. A base class of `row_editor`, which changes
/// rows.
class row_cursor {
public:
    row_cursor(Connection1& c, recordset_settings s);

    Connection1& connection;
    const recordset_settings settings;
    QString source;

    bool open = false;
    /// True while the recordset is open and its rows have not been read.
    bool unread = false;
    /// The columns that are read for every row; empty for all.
    std::vector<int> read_first;
    row_set set;
    /// The following rows if rows are read one by one; `set` then has only the current row.
    std::unique_ptr<row_stream> stream;
    /// The index of the current row; -1 before the first, the number of rows after the last. In a gap it is
    /// the index of the row that follows the deleted one.
    int place = 0;
    bool in_gap = false;

    int count() const { return static_cast<int>(set.rows.size()); }
    bool on_row() const { return open && !in_gap && place >= 0 && place < count(); }
    recordset_row* current_or_null();
    recordset_row& current();

    /// Reads the rows that `Open` left unread, and fails with `misuse` on a closed recordset.
    void need_rows();
    /// The same for functions that need other rows than the current one.
    void need_all_rows();
    void need_open() const;
    /// Runs the statement and reads all its rows.
    row_set read() const;
    void open_stream();
    /// Replaces the current row by the next one of a stream.
    void read_next(row_stream& following);

    /// Moves to an index, -1 and the number of rows included.
    void move_to(int target);
    /// Moves to the first match from the current row on.
    void find(const QString& criterion, search_direction direction);
    /// A value of a row, which is read now if the row was not read completely.
    const QVariant& cell(recordset_row& row, int ordinal);
    /// Reads what was not read of a row, or of all rows.
    void complete(recordset_row& row);
    void complete_all();
    int checked_ordinal(int ordinal) const;
    int ordinal_of(QStringView name) const;
    const QString& column_name(int ordinal) const;

    /// Limits the wait for another program's lock while the result exists.
    [[nodiscard]] lock_wait::limit time_out() const;
    [[noreturn]] void fail(failure_kind kind, const QString& what) const;
    /// The name of the recordset and the statement, for failures.
    QString where() const;
    /// Runs a conversion for a column; its failure then also names the recordset and the column.
    template <typename Work>
    auto located(int ordinal, Work work) const
    {
        try {
            return work();
        } catch (const run_time_failure& failure) {
            fail(failure.kind(), QString(column_name(ordinal) + u": " + failure.details()));
        }
    }
};

}  // namespace verdane
