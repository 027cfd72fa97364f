#pragma once

#include <QString>

namespace verdane {

/// The version of the program, "1.4", from the project's declaration in the main `CMakeLists.txt`.
QString program_version();

}  // namespace verdane
