#pragma once

#include <QStringList>

namespace verdane::testing {

/// The objectNames of all controls of a family of windows, sorted.
QStringList expected_controls(const QString& family);

}  // namespace verdane::testing
