#pragma once

#include <QSqlDatabase>
#include <QString>
#include <QStringList>

#include "store/lock_wait.h"

namespace verdane {

/// What is copied.
struct copied_tables {
    QStringList names;
    /// A longer text is cut to this number of characters, the last of which is then an ellipsis.
    int most_characters = 0;
};

/// `copy_tables` from the file of the embedded engine: `target` attaches the file, read-only, while it
/// copies.
void copy_attached(const QString& path, const copied_tables& tables, QSqlDatabase& target,
                   const lock_notice_maker& notice);

}  // namespace verdane
