#pragma once

#include <QSqlDatabase>
#include <QString>

#include "store/lock_wait.h"

namespace verdane {

struct copied_tables;

/// `copy_tables` from the file of the embedded engine: `target` attaches the file, read-only, while it
/// copies.
void copy_attached(const QString& path, const copied_tables& tables, QSqlDatabase& target,
                   const lock_notice_maker& notice);

}  // namespace verdane
