#pragma once

#include <QMessageBox>

#include <memory>

#include "base/run_time_failure.h"

namespace verdane {

/// The message box of a failure above `parent`, not yet shown: `words` for the user, and below them the
/// technical details. Ctrl+C copies both, or what is selected of them.
std::unique_ptr<QMessageBox> failure_box(const run_time_failure& failure, const QString& words,
                                         QWidget* parent);

}  // namespace verdane
