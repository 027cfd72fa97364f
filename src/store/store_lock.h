#pragma once

#include <QString>

#include <memory>

class QLockFile;

namespace verdane {

/// Takes the lock that keeps a second program off the store at `path`; it holds as long as the object
/// lives. A lock left behind by a program that was killed does not count.
/// Fails with `store_locked`, `store_read_only`, `store_full` or `store_unreachable`.
std::unique_ptr<QLockFile> take_store_lock(const QString& path);

}  // namespace verdane
