#pragma once

#include <QString>

namespace verdane {

/// The statements with which an engine commits.
struct commit_statements {
    /// Begins a transaction that locks nothing before its first statement that writes.
    QString begin;
    /// Begins a transaction that has the lock for writing from the start.
    QString begin_locked;
    QString finish;
    QString undo;
    /// From now on a commit may return before it has reached the disk, or may wait for `restore`.
    QString relax;
    /// The opposite of `relax`. Commits what has waited.
    QString restore;
};

}  // namespace verdane
