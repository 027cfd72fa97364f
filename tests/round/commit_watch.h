#pragma once

#include <QString>

#include <functional>
#include <vector>

struct sqlite3;

namespace verdane::testing {

/// Asks a question after every commit of the program's own connection, when another program would see what
/// was committed: what a kill leaves at any moment is what one of these answers says. The connection outlives
/// the watch.
class commit_watch {
public:
    explicit commit_watch(std::function<QString()> question);
    ~commit_watch();
    commit_watch(const commit_watch&) = delete;
    commit_watch& operator=(const commit_watch&) = delete;

    const std::vector<QString>& answers() const { return answers_; }

private:
    static int committed(void* watch, sqlite3* connection, const char* schema, int pages_in_log);

    std::function<QString()> question_;
    sqlite3* connection_;
    std::vector<QString> answers_;
};

}  // namespace verdane::testing
