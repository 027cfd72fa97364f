#pragma once

#include <QString>

#include <memory>

class QLockFile;

namespace verdane {

/// Takes the lock that excludes a second program from the store at `path`. It is released with the object.
/// The lock of a program that was killed has no effect. Fails with `store_locked`, `store_read_only`,
/// `store_full` or `store_unreachable`.
std::unique_ptr<QLockFile> take_store_lock(const QString& path);

}  // namespace verdane
