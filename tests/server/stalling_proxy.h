#pragma once

#include <QString>
#include <QThread>

#include <atomic>
#include <memory>
#include <vector>

namespace verdane::testing {

/// A socket in front of that of a server. It passes on what is sent in both directions, and stops at a point:
/// the server is then like one that does not respond. Connections stay open.
class stalling_proxy {
public:
    /// `path` is the new socket, `server` that of the server. Nothing is passed on after `messages` messages
    /// of clients.
    stalling_proxy(const QString& path, const QString& server, int messages);
    ~stalling_proxy();
    stalling_proxy(const stalling_proxy&) = delete;
    stalling_proxy& operator=(const stalling_proxy&) = delete;

    /// Ends all connections after so many further messages of clients. The last one still reaches the server,
    /// its answer does not reach the client. Later connections are passed on. Usable from any thread.
    void cut_after(int messages);

    /// Closes all connections, and returns how many messages the client of each has sent.
    std::vector<int> messages_of_connections();

private:
    struct connection {
        int client;
        int server;
        int messages = 0;
        bool ended = false;
    };

    void stop();
    void run();
    void accept_connection();
    /// True if something was read.
    bool serve(connection& each);
    /// False at the end of a connection.
    static bool pass_on(connection& each, int from, int to);
    bool is_stalled() const { return passed_ >= most_; }
    void count_message();
    void wait_for_messages() const;

    const QString server_;
    const int most_;
    std::atomic<int> passed_ = 0;
    /// The number of messages after which the connections end; 0 for none.
    std::atomic<int> cut_at_ = 0;
    int listening_ = -1;
    std::vector<connection> connections_;
    std::atomic<bool> ended_ = false;
    std::unique_ptr<QThread> thread_;
};

}  // namespace verdane::testing
