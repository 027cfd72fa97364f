#pragma once

#include <QStringList>

#include "tests/support/reader.h"

namespace verdane::testing {

/// Checks the conditions that the rounds and shots of a store meet at any time. Returns those that are not
/// met, each as a sentence.
QStringList broken_invariants(const reader& store);

}  // namespace verdane::testing
