#pragma once

#include <QString>

#include <optional>

#include "store/store_location.h"

namespace verdane {

/// The store that an argument of the command line names: `file` (that of the program), `file:PATH`, `source`
/// (the registered one of the program) or `source:NAME`. Nothing for any other text.
std::optional<store_location> store_of_argument(const QString& argument);

/// The argument for a store, with its path or name.
QString argument_of_store(const store_location& store);

}  // namespace verdane
