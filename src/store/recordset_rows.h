#pragma once

#include "store/Connection1.h"
#include "store/find_criterion.h"
#include "store/Recordset.h"
#include "store/schema.h"
#include "store/select_statement.h"

#include <QHash>
#include <QSqlQuery>

#include <utility>
#include <vector>

#include "base/run_time_failure.h"

/// What a recordset holds behind its public face.
namespace verdane {

struct recordset_column {
    QString name;
    column_type type = column_type::any;
    QVariant default_value;
    /// False for a column that the table does not have under this name.
    bool stored = false;
};

struct recordset_row;

/// What waits for a commit on one row.
struct pending_edit {
    bool is_new = false;
    /// The columns that were written, each once, with what stood there before.
    std::vector<std::pair<int, QVariant>> before;
    /// For a new row: where the recordset stood. Only compared, never followed.
    const recordset_row* came_from = nullptr;
};

struct recordset_row {
    /// The engine's own row number; 0 for a row that is not in the store.
    qint64 number = 0;
    std::vector<QVariant> cells;
    std::unique_ptr<pending_edit> pending;
};

using row_list = std::vector<std::unique_ptr<recordset_row>>;

/// A row that waits for the batch update that removes it.
struct removed_row {
    std::size_t place = 0;
    std::unique_ptr<recordset_row> row;
};

/// What a statement gave: its columns and its rows.
struct row_set {
    select_statement shape;
    std::vector<recordset_column> columns;
    QHash<QString, int> ordinals;  ///< by name in small letters; the first of a name counts
    row_list rows;
};

/// What rows are read for: to be written is only for those of a plain table.
enum class row_use { read_and_write, read_only };

/// The rows of a statement in the order in which the engine hands them out.
class row_stream {
public:
    /// Runs the statement. `where` names it in a failure.
    row_stream(const Connection1& connection, const QString& statement, QString where, row_use use);

    /// The columns, without a row.
    row_set columns() const;
    /// The next row, read for these columns; nothing behind the last.
    std::unique_ptr<recordset_row> next(const row_set& columns);

private:
    QString where_;
    select_statement shape_;
    QSqlQuery query_;
};

/// Runs a statement and reads all its rows. `where` names it in a failure.
row_set read_rows(const Connection1& connection, const QString& statement, const QString& where);

struct Recordset::rows {
    rows(Connection1& c, recordset_settings s)
        : connection(c), settings(std::move(s)), source(settings.source)
    {
    }

    Connection1& connection;
    const recordset_settings settings;
    QString source;

    bool open = false;
    /// Open, and its rows are still to be read.
    bool unread = false;
    row_set set;
    /// What is still to come, when the rows are read one by one; `set` then holds the current row alone.
    std::unique_ptr<row_stream> stream;
    std::vector<removed_row> removed;
    /// The current row; -1 before the first, the number of rows behind the last. In a gap it is the
    /// place of the row that follows the deleted one.
    int place = 0;
    bool in_gap = false;

    bool batch() const { return settings.lock == lock_type::batch_optimistic; }
    int count() const { return static_cast<int>(set.rows.size()); }
    bool on_row() const { return open && !in_gap && place >= 0 && place < count(); }
    recordset_row* current_or_null()
    {
        return on_row() ? set.rows[static_cast<std::size_t>(place)].get() : nullptr;
    }

    /// How long a statement of this recordset waits for another program's lock: while the answer lives.
    [[nodiscard]] lock_wait::limit time_out() const { return {connection.waiting(), settings.time_out_s}; }
    /// Runs the statement and reads all its rows.
    row_set read() const;

    [[noreturn]] void fail(failure_kind kind, const QString& what) const;
    QString where() const;
    /// Runs a conversion for a column; its failure then names the recordset and the column too.
    template <typename Work>
    auto located(int ordinal, Work work) const
    {
        try {
            return work();
        } catch (const run_time_failure& failure) {
            fail(failure.kind(), QString(column_name(ordinal) + u": " + failure.details()));
        }
    }
    QString column_name(int ordinal) const { return set.columns[static_cast<std::size_t>(ordinal)].name; }
    void need_open() const;
    /// Reads the rows of a recordset that was opened without them.
    void need_rows();
    /// The same for what a walk row by row cannot give.
    void need_all_rows();
    void open_stream();
    /// Puts the next row in the place of the current one.
    void pass_to_next(row_stream& rows_to_come);
    recordset_row& current();
    find_criterion read_criterion(const QString& criterion) const;
    int checked_ordinal(int ordinal) const;
    void need_updatable();

    /// Stands at a place, -1 and the number of rows included.
    void stand_at(int target);
    void forget_rows();

    /// What every leaving of the current row does first.
    void commit_on_leaving();
    /// The same before a move, which needs the rows.
    void leave_row();
    void commit(recordset_row& row);
    void commit_all();
    void cancel(recordset_row& row);
    void write(int ordinal, const QVariant& value);
};

}  // namespace verdane
