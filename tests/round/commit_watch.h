#pragma once

#include <QString>

#include <functional>
#include <vector>

struct sqlite3;

namespace verdane::testing {

/// Calls a function after every commit of the program's connection, when another program can read what was
/// committed, and collects its results. After a kill the store has one of these states. The connection must
/// outlive the watch.
class commit_watch {
public:
    explicit commit_watch(std::function<QString()> read_state);
    ~commit_watch();
    commit_watch(const commit_watch&) = delete;
    commit_watch& operator=(const commit_watch&) = delete;

    /// The states after the commits so far, in their order.
    const std::vector<QString>& states() const { return states_; }

private:
    static int committed(void* watch, sqlite3* connection, const char* schema, int pages_in_log);

    std::function<QString()> read_state_;
    sqlite3* connection_;
    std::vector<QString> states_;
};

}  // namespace verdane::testing
