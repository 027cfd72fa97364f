#pragma once

#include <QString>

namespace verdane::bench {

/// Ends the process as soon as the widget of that name has been painted that many times.
void end_when_painted(const QString& name, int times);

}  // namespace verdane::bench
