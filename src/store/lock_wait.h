#pragma once

#include <QElapsedTimer>

#include <functional>
#include <memory>

struct sqlite3;

namespace verdane {

/// The notice on the screen while a statement waits for the lock of another program. It is created while the
/// statement runs, so it must not use the store.
class lock_notice {
public:
    virtual ~lock_notice() = default;

    /// Repaints the windows and processes the input of the notice. False once the user has given up.
    virtual bool keep_waiting() = 0;
};

using lock_notice_maker = std::function<std::unique_ptr<lock_notice>()>;

/// How the statements of one connection wait for the lock of another program: at first without a notice, then
/// with one, until the lock is free. If the user gives up or the time-out has passed, the statement fails
/// with `store_locked`.
class lock_wait {
public:
    /// How long a statement waits before the notice is shown.
    static constexpr int quiet_ms = 1000;
    /// The time-out of a statement without a recordset, in seconds. All recordsets of the catalogue have the
    /// same.
    static constexpr int default_time_out_s = 30;

    /// Makes the statements of this connection wait.
    void attach(sqlite3* connection);

    /// Sets the function that creates the notice. Without it statements wait without a notice.
    void set_notice_maker(lock_notice_maker maker) { make_notice_ = std::move(maker); }

    /// Limits the wait of statements to that number of seconds during its lifetime, and closes the notice at
    /// its end. The constructor fails with `store_locked` while another statement waits.
    class limit {
    public:
        limit(lock_wait& wait, int seconds);
        ~limit();
        limit(const limit&) = delete;
        limit& operator=(const limit&) = delete;

    private:
        lock_wait& wait_;
        int before_ms_;
    };

private:
    static int is_busy(void* wait, int earlier_calls);
    bool keep_waiting(bool first);
    bool notice_allows();

    lock_notice_maker make_notice_;
    std::unique_ptr<lock_notice> notice_;
    QElapsedTimer waited_;
    int limit_ms_ = default_time_out_s * 1000;
    bool waiting_ = false;
};

}  // namespace verdane
