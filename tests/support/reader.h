#pragma once

#include <QString>
#include <QVariant>

#include <utility>
#include <vector>

#include "store/store_location.h"

namespace verdane::testing {

/// Reads a store on a separate connection, so it reads only committed rows. Usable from any thread.
/// Statements are in the SQL of SQLite on every engine.
class reader {
public:
    explicit reader(store_location store) : store_(std::move(store)) {}
    explicit reader(const QString& file) : store_(store_location::file(file)) {}

    /// Every row of a statement. A statement that fails ends the test with the engine's message.
    std::vector<std::vector<QVariant>> rows(const QString& statement) const;
    /// The first column of the first row; an invalid value if there is no row.
    QVariant value(const QString& statement) const;
    QString text(const QString& statement) const { return value(statement).toString(); }
    int number(const QString& statement) const { return value(statement).toInt(); }
    /// What the engine's own check of the stored data finds; empty if they are sound.
    QString damage() const;
    /// Returns when no other connection to the store is left on a server, which notices the end of a killed
    /// program a moment later. Files have no such connections. A wait of ten seconds ends the test.
    void wait_until_unused() const;
    /// Runs statements that write, to prepare a store.
    void write(const QString& statement) const;
    void write(const QStringList& statements) const;

private:
    store_location store_;
};

}  // namespace verdane::testing
