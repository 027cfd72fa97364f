#pragma once

namespace verdane {

class Connection1;

/// Everything that is written while an object of this class lives is committed together by `finish`; a
/// report would otherwise wait for a commit a row. Without it, as after a failure, nothing of it stays.
/// For recordsets with an optimistic lock: a batch update makes a commit of its own and cannot stand
/// inside.
class single_commit {
public:
    explicit single_commit(Connection1& connection);
    ~single_commit();
    single_commit(const single_commit&) = delete;
    single_commit& operator=(const single_commit&) = delete;

    void finish();

private:
    Connection1& connection_;
    bool open_ = true;
};

}  // namespace verdane
