#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>
#include <functional>

class QSqlDatabase;
struct sqlite3;

namespace verdane {

/// Called repeatedly while the queries of a report run; false ends them. An empty function never ends them.
using continue_check = std::function<bool()>;

/// Restricts a connection to what the query of a template may do: select from the report tables. Any other
/// statement, table or dangerous function does not compile, and a query ends when `may_continue` returns
/// false. While a guard exists, the engine's memory is limited, for all connections of the program.
class query_guard {
public:
    /// `database` is an open SQLite connection that outlives the guard.
    query_guard(const QSqlDatabase& database, continue_check may_continue);
    ~query_guard();
    query_guard(const query_guard&) = delete;
    query_guard& operator=(const query_guard&) = delete;

    /// Why a statement was refused since the last call; empty if none was.
    QString take_refusal();

    /// Whether the report continues. After the first false it always is false.
    bool may_continue();

    /// Keeps the rows of a statement, which has run before, in a table that statements may then read as well.
    /// False if that is not possible: memory is short, or the report was stopped.
    bool keep_rows(const QString& table, const QString& statement);

private:
    static int authorize(void* guard, int action, const char* first, const char* second, const char*,
                         const char*);
    static int interrupt(void* guard);
    int refuse(const QString& reason);

    sqlite3* connection_;
    continue_check may_continue_;
    bool is_stopped_ = false;
    QString refusal_;
    QStringList kept_;
    std::int64_t memory_limit_before_;
};

}  // namespace verdane
