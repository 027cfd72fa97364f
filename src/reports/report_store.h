#pragma once

#include <QString>

namespace verdane {

/// Sets the path of the store. The program does so once, when it starts.
void set_report_store(const QString& path);
QString report_store();

}  // namespace verdane
