#pragma once

#include <QStringList>

#include "tests/support/reader.h"

namespace verdane::testing {

/// What must hold of the rounds and shots of a store at any time, each as a sentence; those that do not
/// hold are answered.
QStringList broken_invariants(const reader& store);

}  // namespace verdane::testing
