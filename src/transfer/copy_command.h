#pragma once

#include <QStringList>

#include "transfer/exit_status.h"

namespace verdane {

/// `copy FROM TO`: copies a diary into an empty store and reports each table on standard output. Failures are
/// reported on the standard error output, in the current language.
exit_status run_copy(const QStringList& arguments);

}  // namespace verdane
