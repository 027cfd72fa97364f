#pragma once

#include <QString>
#include <QVariant>

#include "store/row_cursor.h"

namespace verdane {

/// The rows of a recordset with their changes that are not committed.
class row_editor : public row_cursor {
public:
    using row_cursor::row_cursor;

    /// Closes the recordset and drops what is pending.
    void close();
    /// Commits the current row and reads the rows again, unless they have not been read yet.
    void requery();

    bool pending() const;

    /// Commits the current row, unless the lock is batch-optimistic.
    void commit_on_leaving();
    /// The same before a move, which needs the rows.
    void leave_row();
    /// Commits all pending rows, with a batch-optimistic lock in one transaction.
    void commit_all();
    /// Drops what is pending on the current row.
    void cancel_current();

    void add();
    void write(int ordinal, const QVariant& value);
    void remove();

private:
    bool batch() const { return settings().lock == lock_type::batch_optimistic; }
    void need_updatable();
    void commit(recordset_row& row);
    void cancel(recordset_row& row);
    void commit_batch();

    /// The rows that the next batch update deletes from the store.
    row_list removed_;
};

}  // namespace verdane
