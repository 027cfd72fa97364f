#pragma once

#include <QHash>
#include <QString>
#include <QVariant>

#include <memory>
#include <utility>
#include <vector>

#include "store/select_statement.h"
#include "store/tables/columns.h"

/// The rows of a statement in memory, and how they are read.
namespace verdane {

class Connection1;
class result_rows;
class store_engine;

struct recordset_column {
    QString name;
    column_type type = column_type::any;
    QVariant default_value;
    /// False for a column that the table does not have under this name.
    bool stored = false;
};

struct recordset_row;

/// The changes of one row that are not committed.
struct pending_edit {
    bool is_new = false;
    /// The columns that were written, each once, with their committed values.
    std::vector<std::pair<int, QVariant>> before;
    /// For a new row: the row that was current before. Only compared, because it may no longer exist.
    const recordset_row* came_from = nullptr;
};

struct recordset_row {
    /// The engine's row number; 0 for a row that is not in the store.
    qint64 number = 0;
    /// For a row that is removed and has no such number: how many rows before it have the same values.
    int equal_before = 0;
    std::vector<QVariant> cells;
    /// False while only the columns that were read first have their values.
    bool complete = true;
    std::unique_ptr<pending_edit> pending;
};

using row_list = std::vector<std::unique_ptr<recordset_row>>;

/// The result of a statement.
struct row_set {
    select_statement shape;
    /// True if the engine's number of each row was read with its columns.
    bool has_numbers = false;
    std::vector<recordset_column> columns;
    /// By name in small letters; the first column of a name counts.
    QHash<QString, int> ordinals;
    /// The columns that were read first, in their order; empty if all were read.
    std::vector<int> read_first;
    row_list rows;

    bool has_value(const recordset_row& row, int ordinal) const;
};

/// Whether rows may be written; only those of a plain table can be.
enum class row_use { read_and_write, read_only };

/// The rows of a statement in the order of the engine.
class row_stream {
public:
    /// Runs the statement. `where` names it in a failure. If `read_first` is not empty, only these columns
    /// are read, provided that the statement selects all columns of a table whose rows have an identity.
    row_stream(const Connection1& connection, const QString& statement, const QString& where, row_use use,
               std::vector<int> read_first = {});
    ~row_stream();

    /// The columns, without a row.
    row_set columns() const;
    /// The next row with these columns; null after the last.
    std::unique_ptr<recordset_row> next(const row_set& columns);

private:
    QString engine_statement(const store_engine& engine, const QString& statement,
                             const QString& identity) const;

    const Connection1& connection_;
    select_statement shape_;
    std::vector<int> read_first_;
    bool has_numbers_ = false;
    std::unique_ptr<result_rows> rows_;
};

/// Runs a statement and reads all its rows. `where` names it in a failure. For `read_first` see `row_stream`.
row_set read_rows(const Connection1& connection, const QString& statement, const QString& where,
                  const std::vector<int>& read_first = {});

/// Reads the columns of a row that were not read first. Fails with `misuse` if the row is no longer in the
/// store.
void complete_row(const Connection1& connection, const row_set& set, recordset_row& row,
                  const QString& where);

/// The same for all rows, with one statement. A row that is no longer in the store stays as it is.
void complete_rows(const Connection1& connection, row_set& set, const QString& statement,
                   const QString& where);

}  // namespace verdane
