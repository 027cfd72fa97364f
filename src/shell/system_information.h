#pragma once

#include <QString>

namespace verdane {

/// The platform's system information tool; empty where there is none.
QString system_information_tool();

/// Starts that tool with a normal window, or shows a message that there is none.
void show_system_information();

}  // namespace verdane
