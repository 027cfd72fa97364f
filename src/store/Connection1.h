#pragma once

#include <QSqlDatabase>
#include <QString>

#include <memory>

#include "store/lock_wait.h"

class QLockFile;

namespace verdane {

class prepared_statements;

/// When the whole file is checked for damage: while it is opened, or later, when the caller calls
/// `check_soundness`, but before the first statement that writes. If the file has no table, or if opening
/// changes its journal mode, it is always checked while it is opened.
enum class soundness_check { while_opening, later };

/// The connection to the store: one SQLite file in the data folder of the user, created with all tables on
/// the first start.
class Connection1 {
public:
    Connection1();
    ~Connection1();
    Connection1(const Connection1&) = delete;
    Connection1& operator=(const Connection1&) = delete;

    /// The connection string of the data source `Verdbase`, which would replace the file.
    static QString connection_string();

    /// The file of the store in the platform's folder for the data of the user.
    static QString default_path();

    /// Opens the store at `path`, creates it if there is none, and takes the lock that excludes a second
    /// program. Commits survive a power cut (WAL, synchronous=FULL). A file with only some of the tables is
    /// opened, too; a recordset on a missing table then fails with `missing_table`. Fails with
    /// `store_locked`, `store_read_only`, `store_damaged`, `store_full` or `store_unreachable`, and with
    /// `misuse` if the connection is open. After a failure the file is unchanged.
    void Open(const QString& path = default_path(), soundness_check check = soundness_check::while_opening);

    /// Checks the whole file, and the indexes against the tables, without changing it. Fails with
    /// `store_damaged`.
    void check_soundness() const;

    /// Checks the file unless it has been checked. Called before every statement that writes, because figures
    /// that a damaged index hides would be overwritten with zeros. Fails with `store_damaged`.
    void need_soundness() const;

    /// Closes the connection and releases the lock. Pending rows of recordsets are not written.
    void Close();

    bool is_open() const;
    QString path() const { return path_; }

    /// Runs a statement without parameters and commits it. Recordsets that are open keep the rows they
    /// have read until their next `Requery`. Fails with the kind that fits the engine's error; its details
    /// contain the statement.
    void Execute(const QString& statement);

    /// Qt's handle of the connection, for this library only.
    QSqlDatabase database() const;

    /// The statements that write rows, prepared until the connection is closed.
    prepared_statements& prepared() const { return *prepared_; }

    /// How statements wait for the lock of another program. The time-out is that of the recordset, or
    /// `lock_wait::default_time_out_s`.
    lock_wait& waiting() const { return *waiting_; }

private:
    friend class relaxed_commits;

    /// How long opening waits for another program that has locked the file, in seconds. Short, because no
    /// window is open yet that could show the reason.
    static constexpr int opening_time_out_s = 1;

    /// How much of the file the engine may keep in memory. A full diary has some 4 MB, which the statistics
    /// read many times; the engine's default is 2 MB.
    static constexpr int kept_pages_kb = 16 * 1024;

    void open_engine(soundness_check check);
    void check_whole_file() const;

    /// Qt's name for this connection. Tests open several in one process.
    QString name_;
    int relaxations_ = 0;
    mutable bool known_sound_ = false;
    QString path_;
    std::unique_ptr<QLockFile> lock_;
    std::unique_ptr<prepared_statements> prepared_;
    std::unique_ptr<lock_wait> waiting_;
};

/// A text between single quotes, with the quotes inside it doubled. Values that the program generates (round
/// keys, course codes) contain no quotes.
QString quoted(const QString& text);

}  // namespace verdane
