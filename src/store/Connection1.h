#pragma once

#include <QSqlDatabase>
#include <QSqlError>
#include <QString>

#include <memory>

#include "base/run_time_failure.h"
#include "store/lock_wait.h"

class QLockFile;

namespace verdane {

class prepared_statements;

/// When the whole file is checked for damage: while it is opened, or later, by the caller's own call of
/// `check_soundness`, and at the latest before the first statement that writes. A file is checked while it is
/// opened in either case if no table is found in it, or if opening it changes its journal mode.
enum class soundness_check { while_opening, later };

/// The program's one connection to the store. With no data source `Verdbase` registered, the store
/// is one SQLite file in the user's data folder, laid down whole on the first start.
class Connection1 {
public:
    Connection1();
    ~Connection1();
    Connection1(const Connection1&) = delete;
    Connection1& operator=(const Connection1&) = delete;

    /// The connection string of the data source.
    static QString connection_string();

    /// The store's file in the user's data folder (the platform's standard place).
    static QString default_path();

    /// Opens the store at `path`, laying it down first when there is none, and takes the lock that
    /// keeps a second program off it. Commits survive a power cut (WAL, synchronous=FULL).
    /// The whole file is checked first, unless that is left for later; one that has some of the tables is
    /// taken as it is, and a recordset on a table that it lacks fails with `missing_table`. Fails with
    /// `store_locked`, `store_read_only`, `store_damaged`, `store_full` or `store_unreachable`, and with
    /// `misuse` when it is open; the file is then as it was.
    void Open(const QString& path = default_path(), soundness_check check = soundness_check::while_opening);

    /// Checks the whole file, its indexes against its tables too, which changes nothing.
    /// Fails with `store_damaged`.
    void check_soundness() const;

    /// Checks the file unless it is known to be sound. For whatever is about to write: figures that a
    /// damaged index hides would be overwritten with zeros. Fails with `store_damaged`.
    void need_soundness() const;

    /// Closes the connection and gives the lock back. Pending rows of recordsets are not written.
    void Close();

    bool is_open() const;
    QString path() const { return path_; }

    /// Runs a statement without parameters and commits it. Recordsets that are open keep the rows they
    /// have read until their next `Requery`. Fails with the kind that fits the engine's error; the
    /// statement stands in the details.
    void Execute(const QString& statement);

    /// The toolkit's handle, for the recordsets of this room only.
    QSqlDatabase database() const;

    /// The statements that this room writes rows with, kept ready until the connection is closed.
    prepared_statements& prepared() const { return *prepared_; }

    /// How statements wait for another program's lock. Once the connection is open a statement waits for the
    /// time-out of its recordset, or for `lock_wait::default_time_out_s`.
    lock_wait& waiting() const { return *waiting_; }

private:
    friend class relaxed_commits;

    /// How long opening waits for a tool that holds the file, in seconds. Short: at the start no window is up
    /// that could show why nothing happens.
    static constexpr int opening_time_out_s = 1;

    /// How much of the file the engine may keep in memory. A full diary is some 4 MB, and the statistics
    /// read it again and again; the engine's own 2 MB would hold only half of it.
    static constexpr int kept_pages_kb = 16 * 1024;

    void open_engine(soundness_check check);
    void check_whole_file() const;

    /// The toolkit's name for this connection; several may be open in one process, on several files.
    QString name_;
    int relaxations_ = 0;
    mutable bool known_sound_ = false;
    QString path_;
    std::unique_ptr<QLockFile> lock_;
    std::unique_ptr<prepared_statements> prepared_;
    std::unique_ptr<lock_wait> waiting_;
};

/// A text between single quotes, with the quotes inside it doubled. For every value that the system
/// makes itself (round keys, course codes) this adds nothing but the two quotes.
QString quoted(const QString& text);

/// The failure that an engine's error means; `where` names the statement and the recordset.
run_time_failure store_failure(const QSqlError& error, const QString& where);

}  // namespace verdane
