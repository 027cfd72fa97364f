#pragma once

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QVariant>

#include <memory>
#include <vector>

#include "store/engines/result_rows.h"
#include "store/store_location.h"

namespace verdane::testing {

/// A connection of a test to a store, separate from that of the program. A statement that fails ends the test
/// with the engine's message. To be used in one thread.
///
/// A store of SQLite over ODBC is a file like that of the embedded engine and is opened as one: both
/// libraries use the same copy of SQLite in this process, so the locks of one hold for the other.
class outside_connection {
public:
    explicit outside_connection(const store_location& store);
    ~outside_connection();
    outside_connection(const outside_connection&) = delete;
    outside_connection& operator=(const outside_connection&) = delete;

    bool is_server() const { return is_server_; }

    /// Runs a statement and returns its rows. On a server `rowid` is the column that identifies a row there,
    /// and `||` joins texts.
    QSqlQuery run(const QString& statement) const;

    /// The same, for a statement that is the server's own.
    QSqlQuery run_unchanged(const QString& statement) const;

    /// The rows of a statement that is the server's own, many times faster than the driver of the toolkit
    /// returns them. Texts have to be ASCII.
    std::unique_ptr<result_rows> rows_of_server(const QString& statement) const;

private:
    QString name_;
    bool is_server_;
};

/// The rows of a query that was run, up to the last one.
std::vector<std::vector<QVariant>> all_rows(QSqlQuery& query);

}  // namespace verdane::testing
