#pragma once

#include <QSqlDatabase>
#include <QString>

#include <functional>
#include <memory>

#include "store/lock_wait.h"
#include "store/soundness_check.h"
#include "store/store_location.h"
#include "store/store_traffic.h"

namespace verdane {

class store_engine;

/// The connection to the store: one SQLite file in the data folder of the user, or a registered ODBC data
/// source. All tables are created on the first start.
class Connection1 {
public:
    Connection1();
    ~Connection1();
    Connection1(const Connection1&) = delete;
    Connection1& operator=(const Connection1&) = delete;

    /// The connection string of the registered data source.
    static QString connection_string();

    /// The file of the store in the platform's folder for the data of the user.
    static QString default_path();

    /// Opens a store, creates its tables if there are none, and takes the lock that excludes a second
    /// program. A file with only some of the tables is opened, too; a recordset on a missing table then fails
    /// with `missing_table`. Fails with `store_locked`, `store_read_only`, `store_damaged`, `store_full` or
    /// `store_unreachable`, and with `misuse` if the connection is open. After a failure the store is
    /// unchanged.
    void Open(const store_location& store = default_store(),
              soundness_check check = soundness_check::while_opening);
    /// Opens the file at `path`.
    void Open(const QString& path, soundness_check check = soundness_check::while_opening);

    /// Opens a store like the other functions, but only if it has tables. Without them the result is false,
    /// the connection stays closed and nothing is created.
    bool OpenExisting(const store_location& store);

    /// Checks the whole file, and the indexes against the tables, without changing it. Fails with
    /// `store_damaged`.
    void check_soundness() const;

    /// Checks the file unless it has been checked. Called before every statement that writes, because figures
    /// that a damaged index hides would be overwritten with zeros. Fails with `store_damaged`.
    void need_soundness() const;

    /// Closes the connection and releases the lock. Pending rows of recordsets are not written.
    void Close();

    bool is_open() const;
    /// The store that was opened last.
    const store_location& location() const { return location_; }
    /// The path of its file, or the name of its source.
    QString path() const { return location_.name; }

    /// Runs a statement without parameters and commits it. Recordsets that are open keep the rows they
    /// have read until their next `Requery`. Fails with the kind that fits the engine's error; its details
    /// contain the statement.
    void Execute(const QString& statement);

    /// Statements that add the column that identifies a row to the tables of the store. Empty unless someone
    /// else made the tables of a source without it. The program works without it, more slowly.
    QString identity_script() const;

    /// Qt's handle of the connection, for this library only.
    QSqlDatabase database() const;

    /// The engine of the open store, for this library only. Fails with `misuse` on a closed connection.
    store_engine& engine() const;

    /// Counted by the functions of this library that send statements.
    store_traffic& traffic() const { return traffic_; }

    /// How statements wait for the lock of another program. The time-out is that of the recordset, or
    /// `lock_wait::default_time_out_s`.
    lock_wait& waiting() const { return *waiting_; }

private:
    friend class joined_commits;
    friend class relaxed_commits;
    friend class single_commit;

    /// True if the store has its tables; `without_tables` is called otherwise. Closed after a failure.
    bool open_engine(const store_location& store, soundness_check check,
                     const std::function<void()>& without_tables);

    /// Qt's name for this connection. Tests open several in one process.
    const QString name_;
    int relaxations_ = 0;
    bool in_transaction_ = false;
    store_location location_;
    std::unique_ptr<lock_wait> waiting_;
    mutable store_traffic traffic_;
    /// Null while the connection is closed.
    std::unique_ptr<store_engine> engine_;
};

/// A text between single quotes, with the quotes inside it doubled. Values that the program generates (round
/// keys, course codes) contain no quotes.
QString quoted(const QString& text);

}  // namespace verdane
