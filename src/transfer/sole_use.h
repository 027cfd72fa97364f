#pragma once

#include <QString>

namespace verdane {

/// Fails with `store_locked` if another connection has the file of a store open, by whatever name: the lock
/// file excludes only programs that use the same name. Changes nothing, and fails for no other reason: a
/// damaged or missing file passes.
void need_sole_use(const QString& path);

}  // namespace verdane
