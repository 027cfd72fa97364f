#pragma once

namespace verdane {

class Connection1;

/// Everything that is written while an object of this class lives reaches the store together, by `finish`,
/// or not at all: without it, as after a failure, nothing of it stays. The batch update of a
/// recordset with a batch lock is such a commit itself and cannot stand inside another.
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

}  // namespace verdane
