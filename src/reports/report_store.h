#pragma once

#include <QString>

namespace verdane {

/// Sets the path of the store from which reports read. The program calls it once, at the start.
void set_report_store(const QString& path);
QString report_store();

}  // namespace verdane
