#pragma once

#include <QSqlDatabase>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

#include "store/lock_wait.h"
#include "store/store_location.h"

namespace verdane {

class store_engine;

/// The store that the program opens: the source of `Connection1::connection_string()` if it is registered,
/// otherwise the file at `Connection1::default_path()`.
store_location default_store();

/// What a connection has sent to its engine and read from it since it was made, counted in the same way on
/// every engine. For tests and measurements.
struct store_traffic {
    qint64 statements = 0;
    qint64 rows = 0;
    /// Values of columns in these rows.
    qint64 values = 0;
};

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
    /// with `missing_table`. After a failure the store is unchanged. Fails with
    /// - `misuse`: the connection is open;
    /// - `store_locked`: another program uses the store;
    /// - `store_read_only`, `store_damaged`, `store_full`, `store_unreachable`: the file, its folder or its
    ///   lock file cannot be written or opened, or the file is damaged or of another kind; also the file of
    ///   a source of SQLite.
    ///
    /// A source fails while it is opened with
    /// - `source_unknown`: no source of that name is registered for the user or the computer;
    /// - `source_driver`: Qt's ODBC plug-in is missing, or the driver of the source cannot be loaded;
    /// - `source_password`: the server refuses the account or its password;
    /// - `source_host`: the server refuses this computer;
    /// - `source_login`: the driver and the server have no method of login or encryption in common;
    /// - `source_busy`: the server or the account has as many connections as are allowed;
    /// - `source_database`: the source names no database or file, or a database that the account cannot use;
    /// - `source_stopped`: no server accepts the connection, or the server runs no query;
    /// - `source_silent`: the server accepts the connection and does not respond within 3 seconds, or ends
    /// it;
    /// - `source_engine`: the source belongs to an engine other than MariaDB from 10.5 and SQLite.
    ///
    /// An opened source fails, before anything is written, with
    /// - `source_case`: the server distinguishes the case of table names;
    /// - `source_table`: some tables are missing, and the others are not those of an interrupted creation;
    /// - `source_column`: a column is missing, has another name or is in another place;
    /// - `source_type`: a column has a type that changes or refuses the values of the program;
    /// - `source_storage`: a table has a storage engine without transactions;
    /// - `source_read_only`: the account, or every account, lacks the right to select, insert, update or
    ///   delete.
    void Open(const store_location& store = default_store(),
              soundness_check check = soundness_check::while_opening);
    /// Opens the file at `path`.
    void Open(const QString& path, soundness_check check = soundness_check::while_opening);

    /// Opens a store like the other functions, but only if it has tables. Without them the result is false,
    /// the connection stays closed and nothing is created.
    bool OpenExisting(const store_location& store, soundness_check check = soundness_check::while_opening);

    /// Checks the whole file, and the indexes against the tables, without changing it. Fails with
    /// `store_damaged`.
    void check_soundness() const;

    /// Checks the file unless it has been checked. Called before every statement that writes, because figures
    /// that a damaged index hides would be overwritten with zeros. Fails with `store_damaged`.
    void need_soundness() const;

    /// The names of the indexes that differ from their tables, which `rebuild_indexes` corrects; empty if the
    /// stored data are sound. Changes nothing. Fails with `store_damaged` if anything else is damaged.
    QStringList damaged_indexes() const;

    /// Builds all indexes anew and commits that. Fails with `store_damaged` if the stored data would not be
    /// sound then; nothing is changed.
    void rebuild_indexes() const;

    /// Closes the connection and releases the lock. Pending rows of recordsets are not written.
    void Close();

    /// Closes the connection, and removes the file of the store if opening it has created the file. The lock
    /// is released afterwards. Does nothing on a closed connection.
    void abandon();

    bool is_open() const;
    /// The store that was opened last.
    const store_location& location() const { return location_; }
    /// The path of its file, or the name of its source.
    QString path() const { return location_.name; }

    /// Runs a statement without parameters and commits it. Recordsets that are open keep the rows they
    /// have read until their next `Requery`. Fails with the kind that fits the engine's error; its details
    /// contain the statement. Every statement on a server, also one of a recordset, can fail with
    /// - `source_lost`: the server was stopped or restarted, or did not respond within 30 seconds; no later
    ///   statement succeeds, because the connection is never opened again;
    /// - `store_locked`: another connection has locked the table or the row, and did not release it in time;
    /// - `source_read_only`: the account may not write any more;
    /// - `source_full`: the disk of the server, or the space of its tables, is full;
    /// - `source_value`: a text is too long or a number too large for its column;
    /// - `source_part`: the table or the column does not exist.
    void Execute(const QString& statement);

    /// Statements that add the column that identifies a row to the tables of the store. Empty unless someone
    /// else made the tables of a source without it. The program works without it, more slowly.
    QString identity_script() const;

    /// Qt's handle of the connection, for this library only.
    QSqlDatabase database() const;

    /// The engine of the open store. Other libraries only pass it to `row_insertion`. Fails with `misuse` on
    /// a closed connection.
    store_engine& engine() const;

    const store_traffic& traffic() const { return traffic_; }

    /// Count what was sent and read, for the functions of this library that do so.
    void count_statement() const { ++traffic_.statements; }
    void count_row(std::size_t values) const
    {
        ++traffic_.rows;
        traffic_.values += static_cast<qint64>(values);
    }

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
