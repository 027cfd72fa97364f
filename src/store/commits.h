#pragma once

/// Scopes that change how the statements within them are committed.
namespace verdane {

class Connection1;

/// All that is written during the lifetime is committed together by `finish`. Without it, as after a failure,
/// all of it is undone.
///
/// `UpdateBatch` of a recordset with a batch lock is such a commit itself, so it fails within another.
class single_commit {
public:
    explicit single_commit(Connection1& connection);
    ~single_commit();
    single_commit(const single_commit&) = delete;
    single_commit& operator=(const single_commit&) = delete;

    void finish();

private:
    Connection1& connection_;
    bool done_ = false;
};

/// The commits of recordsets during the lifetime are made together by `finish`: if the process is killed
/// before, none of them is made.
///
/// A statement that fails undoes nothing. If a failure ends the scope, what was written before it is
/// committed, as separate commits would have done; nothing is stored only if that commit fails, too.
///
/// Nothing is locked before the first statement that writes. `UpdateBatch` of a recordset with a batch lock
/// is a transaction itself and fails within this one.
class joined_commits {
public:
    explicit joined_commits(Connection1& connection);
    ~joined_commits();
    joined_commits(const joined_commits&) = delete;
    joined_commits& operator=(const joined_commits&) = delete;

    /// Fails with the kind that fits the engine's error. Nothing was stored then, and the rows in memory
    /// differ from those of the store.
    void finish();

private:
    Connection1& connection_;
    bool finished_ = false;
};

/// During the lifetime a commit may return before it has reached the disk. A power cut may lose the latest
/// commits, in their order, but does not damage the file. For the statistics, which write their report tables
/// hundreds of times; lost rows of these are computed again by the next run. After the last such scope
/// commits are as safe as before, and the first of them also writes the earlier ones to the disk.
///
/// A server cannot do so: `finish` of the outermost scope commits the statements together, and a transaction
/// within it at its own end. Until then their rows are locked, so no message box is shown within the scope.
///
/// Reports read committed rows, and a relaxed commit is one.
///
/// The scope has to contain every transaction that begins in it: the engine does not change the setting
/// within a transaction.
class relaxed_commits {
public:
    explicit relaxed_commits(Connection1& connection);
    ~relaxed_commits();
    relaxed_commits(const relaxed_commits&) = delete;
    relaxed_commits& operator=(const relaxed_commits&) = delete;

    /// Ends the scope. Fails with the kind that fits the engine's error, also if an engine cannot commit the
    /// statements. The destructor ends a scope that a failure has left. If the statements cannot be
    /// committed, both close the connection: later statements would never be committed.
    void finish();

private:
    /// True if this is the outermost scope of an open connection.
    bool leave();

    Connection1& connection_;
    bool finished_ = false;
};

}  // namespace verdane
