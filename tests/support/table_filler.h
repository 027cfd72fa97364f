#pragma once

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QStringList>
#include <QVariantList>

#include <functional>

/// Writing many rows into a store from outside.
namespace verdane::testing {

/// Runs `work` on a connection of its own to the file, in one transaction. A statement that fails ends
/// the test with the engine's words.
void in_one_transaction(const QString& path, const std::function<void(QSqlDatabase&)>& work);

/// Adds rows to one table by one prepared statement.
class table_filler {
public:
    table_filler(const QSqlDatabase& database, const QString& table, const QStringList& columns);

    /// One value for each of the columns, in their order.
    void add(const QVariantList& values);

private:
    QSqlQuery query_;
};

}  // namespace verdane::testing
