#pragma once

namespace verdane {

class Connection1;

/// The commits that recordsets make while an object of this class lives reach the store together, by
/// `finish`: a process that is killed before leaves none of them.
///
/// A statement that fails undoes nothing. If a failure ends the scope, what was written before it is
/// committed, as separate commits would have done; only if that commit fails too is nothing stored.
///
/// Nothing is locked before the first statement that writes. The batch update of a recordset with a batch
/// lock is a transaction itself and fails inside this one.
class joined_commits {
public:
    explicit joined_commits(Connection1& connection);
    ~joined_commits();
    joined_commits(const joined_commits&) = delete;
    joined_commits& operator=(const joined_commits&) = delete;

    /// Fails with the kind that fits the engine's error; nothing was stored then, and the rows of the
    /// recordsets are not what the store holds.
    void finish();

private:
    Connection1& connection_;
    bool finished_ = false;
};

}  // namespace verdane
