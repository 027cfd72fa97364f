#pragma once

namespace verdane {

class Connection1;

/// While an object of this class lives, a commit need not have reached the disk when it returns:
/// a power cut may lose the latest ones, in their order, but never harms the file. For statistics,
/// which write their scratch tables hundreds of times in a run. When the last such object goes, commits
/// are as safe as before, and the next one brings the earlier ones to the disk with it. Until then nobody
/// waits for the disk: what a power cut could take away is computed anew by the next run.
///
/// Reports read committed rows, and a relaxed commit is one.
///
/// An object outlives every transaction that begins while it lives: the engine does not change how safe
/// commits are in the middle of one.
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
