#pragma once

#include <QString>
#include <QStringList>
#include <QVariantList>

#include <functional>

#include "tests/support/outside_connection.h"

/// Writes many rows into a store from outside the program.
namespace verdane::testing {

/// Runs `work` on a separate connection, in one transaction. A statement that fails ends the test with the
/// engine's message.
void in_one_transaction(const store_location& store,
                        const std::function<void(const outside_connection&)>& work);

/// Adds rows to one table, many by one statement. The destructor adds the last ones.
class table_filler {
public:
    table_filler(const outside_connection& store, const QString& table, const QStringList& columns);
    ~table_filler();
    table_filler(const table_filler&) = delete;
    table_filler& operator=(const table_filler&) = delete;

    /// One value for each column, in the order of the columns.
    void add(const QVariantList& values);

private:
    void write_rows();

    const outside_connection& store_;
    QString insertion_;
    QStringList rows_;
};

}  // namespace verdane::testing
