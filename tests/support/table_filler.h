#pragma once

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QStringList>
#include <QVariantList>

#include <functional>

/// Writes many rows into a store from outside the program.
namespace verdane::testing {

/// Runs `work` on a separate connection to the file, in one transaction. A statement that fails ends the test
/// with the engine's message.
void in_one_transaction(const QString& path, const std::function<void(QSqlDatabase&)>& work);

/// Adds rows to one table by one prepared statement.
class table_filler {
public:
    table_filler(const QSqlDatabase& database, const QString& table, const QStringList& columns);

    /// One value for each column, in the order of the columns.
    void add(const QVariantList& values);

private:
    QSqlQuery query_;
};

}  // namespace verdane::testing
