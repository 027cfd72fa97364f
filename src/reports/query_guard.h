#pragma once

#include <QString>

#include <functional>

class QSqlDatabase;
struct sqlite3;

namespace verdane {

/// Asked again and again while the queries of a report run; false ends them. An empty one never does.
using keep_going = std::function<bool()>;

/// Restricts a connection to what the query of a template may do: select from the report tables. Any other
/// statement, table or dangerous function does not compile, and a query ends when `goes_on` says so.
class query_guard {
public:
    /// `database` is an open SQLite connection that outlives the guard.
    query_guard(const QSqlDatabase& database, keep_going goes_on);
    ~query_guard();
    query_guard(const query_guard&) = delete;
    query_guard& operator=(const query_guard&) = delete;

    /// What the statement since the last call was refused for, in words; empty where it was not.
    QString take_refusal();

    /// Asks whether to go on. Once that was denied it stays denied.
    bool goes_on();

private:
    static int authorize(void* guard, int action, const char* first, const char* second, const char*,
                         const char*);
    static int interrupt(void* guard);
    int refuse(const QString& words);

    sqlite3* connection_;
    keep_going goes_on_;
    bool is_stopped_ = false;
    QString refusal_;
};

}  // namespace verdane
