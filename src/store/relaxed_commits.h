#pragma once

namespace verdane {

class Connection1;

/// While an object of this class lives, a commit need not have reached the disk when it returns:
/// a power cut may lose the latest ones, in their order, but never harms the file. For statistics,
/// which write their scratch tables hundreds of times in a run. When the last such object goes,
/// everything is brought to the disk and commits are as safe as before.
///
/// Reports read committed rows, and a relaxed commit is one.
class relaxed_commits {
public:
    explicit relaxed_commits(Connection1& connection);
    ~relaxed_commits();
    relaxed_commits(const relaxed_commits&) = delete;
    relaxed_commits& operator=(const relaxed_commits&) = delete;

private:
    Connection1& connection_;
};

}  // namespace verdane
