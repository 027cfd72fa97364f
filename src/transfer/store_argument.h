#pragma once

#include <QString>

#include <optional>

#include "store/store_location.h"

namespace verdane {

/// The store that an argument of the command line names: `file` (that of the program), `file:PATH`, `source`
/// (the registered one of the program) or `source:NAME`. Nothing for any other text. The path of a file is
/// absolute: the engine reads some others, such as `:memory:`, as no file.
std::optional<store_location> store_of_argument(const QString& argument);

/// True if both are one source, or one file, also by different names: links.
bool are_one_store(const store_location& left, const store_location& right);

/// The argument for a store, with its path or name.
QString argument_of_store(const store_location& store);

}  // namespace verdane
