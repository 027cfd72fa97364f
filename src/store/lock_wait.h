#pragma once

#include <QElapsedTimer>

#include <functional>
#include <memory>

struct sqlite3;

namespace verdane {

/// What the user sees of a statement that waits for a lock which another program holds. It is made while the
/// statement runs, so nothing that it does may reach the store.
class lock_notice {
public:
    virtual ~lock_notice() = default;

    /// Repaints the windows and takes the notice's own input. False once the user has given up.
    virtual bool keep_waiting() = 0;
};

using lock_notice_maker = std::function<std::unique_ptr<lock_notice>()>;

/// How the statements of one connection wait for a lock of another program: quietly at first, then with a
/// notice on the screen, until the lock is free, the user gives up or the statement's time-out has passed.
/// The statement then fails with `store_locked`.
class lock_wait {
public:
    /// How long a statement waits before the notice is shown.
    static constexpr int quiet_ms = 1000;
    /// The time-out of a statement that belongs to no recordset, in seconds; the catalogue gives each
    /// recordset the same.
    static constexpr int default_time_out_s = 30;

    /// Waits for the statements of this connection from now on.
    void attach(sqlite3* connection);

    /// What shows the notice. Without a maker statements wait quietly.
    void set_notice_maker(lock_notice_maker maker) { make_notice_ = std::move(maker); }

    /// Limits the wait of statements to so many seconds during its lifetime, and closes the notice at its
    /// end. The constructor fails with `store_locked` while another statement waits.
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
