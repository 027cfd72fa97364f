#pragma once

#include <QSqlDatabase>
#include <QString>
#include <QVariant>

#include <vector>

#include "store/store_location.h"

namespace verdane {

/// The committed rows of every table of a store, copied into an in-memory SQLite, so that the same statements
/// work on every engine. The store is open on the connection of `data_environment`, unless it is a file.
class diary_snapshot {
public:
    /// Fails like `copy_tables`.
    explicit diary_snapshot(const store_location& store);
    ~diary_snapshot();
    diary_snapshot(const diary_snapshot&) = delete;
    diary_snapshot& operator=(const diary_snapshot&) = delete;

    /// The rows of a statement. Fails with `store_other`.
    std::vector<std::vector<QVariant>> rows(const QString& statement) const;
    /// The first value of the first row.
    int number(const QString& statement) const;

private:
    QString name_;
    QSqlDatabase database_;
};

}  // namespace verdane
