#pragma once

#include <QString>

#include "store/store_location.h"

namespace verdane {

/// Sets the store that reports read. The program calls it once, at the start. The name is empty before.
void set_report_store(const store_location& store);
inline void set_report_store(const QString& file)
{
    set_report_store(store_location::file(file));
}
const store_location& report_store();

}  // namespace verdane
